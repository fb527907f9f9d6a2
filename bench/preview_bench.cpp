// Painting, scrolling, searching and saving long documents.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include "memory.h"
#include "preview/document_builder.h"
#include "preview/output/pdf_export.h"
#include "preview/pages/page_steps.h"
#include "preview/pages/page_view.h"
#include "preview/paint/painter_canvas.h"
#include "preview/text/text_search.h"
#include "preview/window/preview_window.h"
#include "thread_time.h"

namespace tarvis {
namespace {

// 240 bordered cells a page: a list of 16,000 parameters has 334 pages of them.
std::shared_ptr<const Document> Table(int pages) {
  return DocumentBuilder().TablePages(pages).Build();
}

// Peak memory of the process with 700 pages open in the window, its thumbnails shown, a search made, every
// page visited and everything selected. It runs first: the peak is that of the process.
void VisitEveryPage(benchmark::State& state) {
  const double start = ResidentMegabytes("VmRSS:");
  PreviewWindow window(Table(700));
  window.show();
  window.findChild<QTabWidget*>(QStringLiteral("sidePane"))->setCurrentIndex(1);
  for (auto _ : state) {
    window.ActionOf(Command::Find)->trigger();
    window.findChild<QLineEdit*>(QStringLiteral("findText"))->setText(QStringLiteral("gain"));
    for (int page = 0; page < 700; ++page) {
      window.View().GoTo({page, 0});
      QCoreApplication::processEvents();
    }
    window.ActionOf(Command::SelectAll)->trigger();
    QCoreApplication::processEvents();
  }
  state.counters["start_megabytes"] = start;
  state.counters["peak_megabytes"] = PeakMegabytes();
}
BENCHMARK(VisitEveryPage)->Unit(benchmark::kMillisecond)->Iterations(1);

void PaintPageAtZoom(benchmark::State& state) {
  const auto document = Table(8);
  const int width = static_cast<int>(794 * state.range(0) / 100);
  int page = 0;
  for (auto _ : state) {
    page = (page + 1) % 8;
    benchmark::DoNotOptimize(RenderPage(*document, page, width, 0, PagePixelHeight(*document, width)));
  }
}
BENCHMARK(PaintPageAtZoom)->Arg(100)->Arg(200)->Unit(benchmark::kMillisecond);

// Shows frame after frame of `step` and reports the slowest: by the clock, which other programs slow down,
// and by the time that the window's thread worked.
template <typename Step>
void ShowFrames(benchmark::State& state, PageView& view, Step step) {
  view.resize(913, 600);
  view.show();
  QCoreApplication::processEvents();
  double slowest = 0;
  double slowestWork = 0;
  for (auto _ : state) {
    const double workBefore = ThreadMilliseconds();
    QElapsedTimer frame;
    frame.start();
    step();
    QCoreApplication::processEvents();
    slowest = std::max(slowest, static_cast<double>(frame.nsecsElapsed()) / 1e6);
    slowestWork = std::max(slowestWork, ThreadMilliseconds() - workBefore);
  }
  state.counters["slowest_ms"] = slowest;
  state.counters["slowest_work_ms"] = slowestWork;
}

// One wheel notch after the other through 400 pages.
void ScrollFrame(benchmark::State& state) {
  PageView view(Table(400));
  ShowFrames(state, view, [&view] {
    QScrollBar* bar = view.verticalScrollBar();
    bar->setValue(bar->value() + 144 > bar->maximum() ? 0 : bar->value() + 144);
  });
}
BENCHMARK(ScrollFrame)->Unit(benchmark::kMillisecond)->Iterations(3000);

// From page to page that was not seen before.
void JumpFrame(benchmark::State& state) {
  PageView view(Table(400));
  int page = 0;
  ShowFrames(state, view, [&] { view.GoTo({page = (page + 37) % 400, 0}); });
}
BENCHMARK(JumpFrame)->Unit(benchmark::kMillisecond)->Iterations(400);

// One zoom step after the other, in and out.
void ZoomFrame(benchmark::State& state) {
  PageView view(Table(40));
  view.GoTo({20, 0});
  int step = 0;
  ShowFrames(state, view, [&] { ZoomStep(view, step++ % 12 < 6 ? 1 : -1); });
}
BENCHMARK(ZoomFrame)->Unit(benchmark::kMillisecond)->Iterations(240);

void SavePdf(benchmark::State& state) {
  const auto document = Table(334);
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("list.pdf"));
  for (auto _ : state) {
    const QString error = ExportPdf(*document, path, {}, [](int, int) { return true; });
    if (!error.isEmpty()) state.SkipWithError(error.toUtf8().constData());
  }
  state.counters["megabytes"] = static_cast<double>(QFileInfo(path).size()) / 1e6;
}
BENCHMARK(SavePdf)->Unit(benchmark::kMillisecond);

// The same pages painted into the toolkit's PDF writer, to compare with.
void SavePdfByToolkit(benchmark::State& state) {
  const auto document = Table(334);
  const QTemporaryDir folder;
  for (auto _ : state) {
    QPdfWriter writer(folder.filePath(QStringLiteral("list.pdf")));
    writer.setResolution(1440);
    QPainter painter(&writer);
    for (std::size_t page = 0; page < document->Pages.size(); ++page) {
      if (page > 0) writer.newPage();
      PainterCanvas canvas(painter);
      PaintPage(*document, page, canvas);
    }
  }
}
BENCHMARK(SavePdfByToolkit)->Unit(benchmark::kMillisecond);

void SearchAsOneTypes(benchmark::State& state) {
  const auto document = Table(334);
  DocumentText text(*document);
  for (auto _ : state) benchmark::DoNotOptimize(Search(text, QStringLiteral("gain 15"), {}));
}
BENCHMARK(SearchAsOneTypes)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvis

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
