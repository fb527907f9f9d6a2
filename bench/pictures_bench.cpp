// Loading and painting metafiles that an independent plotting program drew.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

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
