// The road of one document, step by step and once each as in a real run, by this program's parts and by the
// toolkit's own text document. Prints a JSON object of milliseconds, and of the peak memory in megabytes.
//
//   document_bench tarvis|toolkit MODE FOLDER OVERLAPPED [QUEUE]   FOLDER ends in a backslash; QUEUE is a
//   print
//                                                           queue that takes PDFs
//   document_bench dialog                                   shows an empty dialog until it is killed
#include <QApplication>
#include <QDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <cstdio>

#include "document_roads.h"
#include "memory.h"

namespace tarvis {
namespace {

constexpr int PagesPainted = 20;  // at most

// What a queue of the print system gets. The PDF is saved once more, since each step after the first one
// finds fonts that are open.
void MeasureQueue(DocumentRoad& road, const QString& queue, Stopwatch& notes) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPrinterName(queue);
  if (printer.printerName() != queue) qFatal("no print queue %s", qPrintable(queue));
  Stopwatch watch;
  road.Print(printer);
  notes.Note("handed to a print queue [ms]", watch.Milliseconds());
  printer.setColorMode(QPrinter::GrayScale);
  watch = Stopwatch();
  road.Print(printer);
  notes.Note("the same in greys [ms]", watch.Milliseconds());
  const QTemporaryDir folder;
  watch = Stopwatch();
  road.SavePdf(folder.filePath(QStringLiteral("again.pdf")));
  notes.Note("PDF, once more [ms]", watch.Milliseconds());
}

void Measure(DocumentRoad& road, const QString& queue) {
  Stopwatch watch;
  road.Read();
  watch.Report("read [ms]");
  road.Compose();
  watch.Report("compose, all data sets [ms]");
  road.PaintPage(0);
  watch.Report("first page painted [ms]");
  const int painted = std::min(PagesPainted, road.PageCount());
  for (int page = 0; page < painted; ++page) road.PaintPage(page);
  watch.Report("page painted, 100 % [ms]", painted);
  const QTemporaryDir folder;
  road.SavePdf(folder.filePath(QStringLiteral("document.pdf")));
  watch.Report("PDF [ms]");
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(folder.filePath(QStringLiteral("painted.pdf")));
  road.Print(printer);
  watch.Report("painting for a printer [ms]");
  watch.Note("peak memory of these steps [MB]", PeakMegabytes());
  watch.Note("pages", road.PageCount());
  if (!queue.isEmpty()) MeasureQueue(road, queue, watch);
  std::puts(watch.Json().c_str());
}

int ShowDialog() {
  QDialog dialog;
  dialog.resize(500, 400);
  return dialog.exec();
}

}  // namespace
}  // namespace tarvis

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() == 2 && arguments[1] == QStringLiteral("dialog")) return tarvis::ShowDialog();
  if (arguments.size() != 5 && arguments.size() != 6)
    return std::fputs("usage: document_bench WAY MODE FOLDER OVERLAPPED [QUEUE]\n", stderr);
  const tarvis::BenchJob job{arguments[2].toStdString(), arguments[3].toStdString(), arguments[4].toShort()};
  const auto road =
      arguments[1] == QStringLiteral("toolkit") ? tarvis::ToolkitRoad(job) : tarvis::TarvisRoad(job);
  tarvis::Measure(*road, arguments.value(5));
  return 0;
}
