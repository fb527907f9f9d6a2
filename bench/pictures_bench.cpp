// Loading and painting metafiles that an independent plotting program drew.
#include <benchmark/benchmark.h>

#include <QDataStream>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <initializer_list>
#include <random>

#include "pictures/metafile/fonts/glyph_outlines.h"
#include "pictures/paintable_picture.h"
#include "pictures/picture_budget.h"
#include "pictures/picture_file_loader.h"

namespace tarvis {
namespace {

QByteArray ReadData(const char* name) {
  QFile file(QString(TARVIS_SOURCE_DIR "/tests/pictures/data/") + name);
  if (!file.open(QIODevice::ReadOnly)) qFatal("no %s", name);
  return file.readAll();
}

Bytes View(const QByteArray& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

void PaintOnPage(const Picture& picture, QImage& page) {
  QPainter painter(&page);
  static_cast<const PaintablePicture&>(picture).Paint(painter, QRectF(page.rect()));
}

PicturePtr Decode(const char* name, const QByteArray& bytes, GlyphOutlines& glyphs) {
  PictureBudget budget;
  return DecodePicture(name, View(bytes), glyphs, budget);
}

// A graph as large as it is on a page at 96 dots to the inch.
void LoadAndPaint(benchmark::State& state, const char* name) {
  const QByteArray bytes = ReadData(name);
  GlyphOutlines glyphs;
  QImage page(586, 482, QImage::Format_RGB32);
  page.fill(Qt::white);
  for (auto _ : state) PaintOnPage(*Decode(name, bytes, glyphs), page);
  state.counters["KB"] = static_cast<double>(bytes.size()) / 1024;
}

void LoadOnly(benchmark::State& state, const char* name) {
  const QByteArray bytes = ReadData(name);
  GlyphOutlines glyphs;
  for (auto _ : state) benchmark::DoNotOptimize(Decode(name, bytes, glyphs));
}

// An enhanced metafile with one area below a curve of `points` points that jump up and down.
QByteArray NoisyArea(int points) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  const auto put = [&out](std::initializer_list<qint32> values) {
    for (const qint32 value : values) out << value;
  };
  constexpr qint32 width = 20000, height = 15000, headerSize = 88, endSize = 20, fixedSize = 28;
  const qint32 polygonSize = fixedSize + (points + 2) * 8;
  put({1, headerSize, 0, 0, width, height, 0, 0, width * 100, height * 100, 0x464D4520, 0x10000});
  put({headerSize + 12 + polygonSize + endSize, 4, 1, 0, 0, 0, 100, 100, 100, 100});
  put({37, 12, static_cast<qint32>(0x80000004)});  // the black brush
  put({3, polygonSize, 0, 0, width, height, points + 2, 0, height});
  std::mt19937 random(7);
  for (int i = 0; i < points; ++i)
    put({static_cast<qint32>(1.0 * width * i / points), static_cast<qint32>(random() % (height * 9 / 10))});
  put({width, height, 14, endSize, 0, 16, endSize});
  return bytes;
}

void PaintNoisyArea(benchmark::State& state) {
  const QByteArray bytes = NoisyArea(16000);
  GlyphOutlines glyphs;
  const PicturePtr picture = Decode("noisy.emf", bytes, glyphs);
  QImage page(586, 482, QImage::Format_RGB32);
  page.fill(Qt::white);
  for (auto _ : state) PaintOnPage(*picture, page);
}

BENCHMARK(PaintNoisyArea)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LoadOnly, Lines, "gp_lines.emf")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LoadAndPaint, Lines, "gp_lines.emf")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LoadOnly, Dense, "gp_dense.emf")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LoadAndPaint, Dense, "gp_dense.emf")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvis

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
