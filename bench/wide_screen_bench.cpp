// Scrolls a list of 400 pages in a window as large as its screen, and prints what a frame takes and the peak
// of memory as JSON. A display is needed: program_bench.py gives it one of 3840 by 2160.
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "memory.h"
#include "preview/document_builder.h"
#include "preview/pages/page_view.h"
#include "preview/paint/toolkit_geometry.h"
#include "preview/window/preview_window.h"
#include "thread_time.h"

namespace tarvis {
namespace {

constexpr int PageCount = 400;
constexpr int WheelNotch = 144;       // logical pixels
constexpr double FrameLength = 16.7;  // milliseconds, as long as a screen shows a picture

double MillisecondsOf(const QElapsedTimer& timer) {
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// In milliseconds: by the clock, which other programs slow down, and the work of the window's thread.
struct Frame {
  double Length = 0;
  double Work = 0;
};

// Runs `step` and all that the window does at once because of it.
template <typename Step>
Frame FrameOf(Step step) {
  const double workBefore = ThreadMilliseconds();
  QElapsedTimer timer;
  timer.start();
  step();
  QCoreApplication::processEvents();
  return {MillisecondsOf(timer), ThreadMilliseconds() - workBefore};
}

// Scrolls from the first page to page `last`, counted from 0, or to the end by steps of `distance` logical
// pixels, one in the time that a screen shows a picture. In the rest of that time pages that have been
// rendered meanwhile are painted, which is timed, too.
std::vector<Frame> Scroll(PageView& view, int distance, int last) {
  QScrollBar& bar = *view.verticalScrollBar();
  bar.setValue(0);
  QCoreApplication::processEvents();
  std::vector<Frame> frames;
  while (bar.value() < bar.maximum() && view.CurrentPage() < last) {
    QElapsedTimer shown;
    shown.start();
    Frame longest = FrameOf([&] { bar.setValue(bar.value() + distance); });
    while (MillisecondsOf(shown) < FrameLength) {
      const Frame more = FrameOf([] {});
      longest = {std::max(longest.Length, more.Length), std::max(longest.Work, more.Work)};
    }
    frames.push_back(longest);
  }
  return frames;
}

void Print(const char* name, std::vector<Frame> frames) {
  std::ranges::sort(frames, {}, &Frame::Work);
  const double medianWork = frames[frames.size() / 2].Work, longestWork = frames.back().Work;
  std::ranges::sort(frames, {}, &Frame::Length);
  const auto late = frames.end() - std::ranges::upper_bound(frames, FrameLength, {}, &Frame::Length);
  std::printf(
      "\"%s\": {\"frames\": %zu, \"median_ms\": %.2f, \"longest_ms\": %.2f, \"late\": %td, "
      "\"median_work_ms\": %.2f, \"longest_work_ms\": %.2f},\n",
      name, frames.size(), frames[frames.size() / 2].Length, frames.back().Length, late, medianWork,
      longestWork);
}

void ScrollWideScreen() {
  PreviewWindow window(DocumentBuilder().TablePages(PageCount).Build());
  window.showFullScreen();
  window.findChild<QTabWidget*>(QStringLiteral("sidePane"))->setCurrentIndex(1);
  PageView& view = window.View();
  QElapsedTimer waited;
  waited.start();
  while (view.width() < window.screen()->size().width() / 2 && waited.elapsed() < 10'000)
    QCoreApplication::processEvents();
  std::printf("{\"width\": %d, \"height\": %d,\n", window.width(), window.height());
  Print("full width, by the wheel", Scroll(view, WheelNotch, PageCount / 20));
  Print("full width, ten pages a second",
        Scroll(view, NearestPixel(view.Layout().PageSize().height() / 6), PageCount));
  window.ActionOf(Command::ManyColumns)->trigger();
  Print("as many columns as fit, three notches a frame", Scroll(view, 3 * WheelNotch, PageCount));
  std::printf("\"peak_megabytes\": %.1f}\n", PeakMegabytes());
}

}  // namespace
}  // namespace tarvis

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  tarvis::ScrollWideScreen();
}
