// Plays picture files as the program does, each in a process of its own, and prints what it took:
// play_pictures [-o FOLDER] FILE...; with -o, what each shows is written there as FILE.png.
// One line a file: name, KB, ms of computing to load and to paint, MB beyond those of an empty process,
// records played, records skipped as KIND:COUNT; or the reason why it is refused.
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>
#include <ctime>

#include "memory.h"
#include "pictures/metafile/fonts/glyph_outlines.h"
#include "pictures/metafile/list/metafile_picture.h"
#include "pictures/picture_file_loader.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr int LongSide = 900;  // pixels

double MillisecondsComputed() {
  return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

QImage PageFor(const Picture& picture) {
  const QSizeF natural(static_cast<double>(picture.NaturalWidth()),
                       static_cast<double>(picture.NaturalHeight()));
  QImage page(natural.scaled(LongSide, LongSide, Qt::KeepAspectRatio).toSize().expandedTo({1, 1}),
              QImage::Format_RGB32);
  page.fill(Qt::white);
  return page;
}

void PrintRecords(const Picture& picture) {
  const auto* metafile = dynamic_cast<const MetafilePicture*>(&picture);
  if (metafile == nullptr) return;
  std::printf("\t%d", metafile->Records().Played);
  for (const auto& [kind, count] : metafile->Records().Skipped) std::printf("\t%X:%d", kind, count);
}

void PlayFile(const QString& path, const QString& folder) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) qFatal("can't read %s", qPrintable(path));
  const QByteArray bytes = file.readAll();
  const std::string name = QFileInfo(path).fileName().toStdString();
  std::printf("%s\t%.0f", name.c_str(), static_cast<double>(bytes.size()) / 1024);
  const double before = PeakMegabytes();
  GlyphOutlines glyphs;
  PictureBudget budget;
  const double start = MillisecondsComputed();
  try {
    const PicturePtr picture = DecodePicture(
        name,
        {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())},
        glyphs, budget);
    const double loaded = MillisecondsComputed();
    QImage page = PageFor(*picture);
    QPainter painter(&page);
    static_cast<const PaintablePicture&>(*picture).Paint(painter, QRectF(page.rect()));
    painter.end();
    std::printf("\t%.1f\t%.1f\t%.0f", loaded - start, MillisecondsComputed() - loaded,
                PeakMegabytes() - before);
    PrintRecords(*picture);
    if (!folder.isEmpty()) page.save(folder + "/" + QString::fromStdString(name) + ".png");
  } catch (const RunTimeFailure& failure) {
    std::printf("\t%.1f\t0\t%.0f\trefused: %s", MillisecondsComputed() - start, PeakMegabytes() - before,
                failure.Place().Text.value_or("").c_str());
  }
  std::printf("\n");
}

// False if the process that plays it breaks.
bool PlayApart(const QString& path, const QString& folder, int argc, char** argv) {
  std::fflush(stdout);
  const pid_t child = fork();
  if (child == 0) {
    const QGuiApplication application(argc, argv);
    PlayFile(path, folder);
    std::fflush(stdout);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  const bool sound = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  if (!sound) std::printf("%s: BROKEN, status %d\n", qPrintable(path), status);
  return sound;
}

}  // namespace
}  // namespace tarvis

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QString folder;
  bool sound = true;
  for (int i = 1; i < argc; ++i) {
    if (qstrcmp(argv[i], "-o") == 0 && i + 1 < argc) {
      folder = QString::fromLocal8Bit(argv[++i]);
    } else {
      sound = tarvis::PlayApart(QString::fromLocal8Bit(argv[i]), folder, argc, argv) && sound;
    }
  }
  return sound ? 0 : 1;
}
