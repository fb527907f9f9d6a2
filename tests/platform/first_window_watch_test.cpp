// The line for a start that shows no window for long.
#include "platform/first_window_watch.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <atomic>
#include <memory>

#include "support/fake_desktop.h"

namespace tarvis {
namespace {

using namespace std::chrono_literals;

// Counts what it receives, which comes from another thread; the lines are read when the watch is gone.
class CountingDesktop : public FakeDesktop {
 public:
  void Diagnose(const std::string& line) override {
    FakeDesktop::Diagnose(line);
    ++Count;
  }
  std::atomic<int> Count = 0;
};

bool IsTold(const CountingDesktop& desktop) {
  return QTest::qWaitFor([&] { return desktop.Count > 0; }, 2500);
}

TEST(FirstWindowWatch, SaysOnceWhatAStartWithoutAWindowWaitsFor) {
  CountingDesktop desktop;
  {
    FirstWindowWatch watch(desktop, 1s);
    watch.WaitsFor("the display :7");
    ASSERT_TRUE(IsTold(desktop));
    watch.WaitsFor("the fonts");
  }
  EXPECT_EQ(desktop.Diagnoses,
            std::vector<std::string>{"no window is shown yet; the start has waited 1 s for the display :7"});
}

TEST(FirstWindowWatch, IsSilentOnceAWindowHasBeenShown) {
  CountingDesktop desktop;
  FirstWindowWatch watch(desktop, 1s);
  watch.NoticeWindows();
  QWidget window;
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  window.hide();
  EXPECT_FALSE(IsTold(desktop));
}

TEST(FirstWindowWatch, ReportsAWindowThatIsBuiltButNotShown) {
  CountingDesktop desktop;
  {
    FirstWindowWatch watch(desktop, 1s);
    watch.NoticeWindows();
    QWidget window;
    window.setWindowTitle("built");
    ASSERT_TRUE(IsTold(desktop));
  }
  EXPECT_EQ(
      desktop.Diagnoses,
      std::vector<std::string>{"no window is shown yet; the start has waited 1 s for its dialog to be built, "
                               "which asks the message buses of the desktop"});
}

TEST(FirstWindowWatch, EndsWithItsObject) {
  CountingDesktop desktop;
  std::make_unique<FirstWindowWatch>(desktop, 1s).reset();
  EXPECT_FALSE(IsTold(desktop));
}

}  // namespace
}  // namespace tarvis
