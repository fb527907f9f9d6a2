// How a run ends that fails within an event handler.
#include "platform/application.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstdlib>

#include "platform/message_watch.h"
#include "platform/qt_desktop.h"
#include "text/run_time_failure.h"

// Each test ends a process of its own, started anew, with an application object of its own.
namespace tarvis {
namespace {

// Reports what boxes were shown on standard error, where the test reads it.
class TellingDesktop : public QtDesktop {
 public:
  void ShowMessage(const std::string& title, const std::string& text) override {
    Diagnose("box '" + title + "': " + text);
    if (onMessage) onMessage();
  }
  std::function<void()> onMessage;
};

[[noreturn]] void RunApplication(const std::function<void(TellingDesktop&)>& start) {
  delete qApp;
  char name[] = "tarvis";
  ToolkitArguments arguments(name);
  TellingDesktop desktop;
  Application application(arguments, desktop);
  application.Run([&] { start(desktop); });
}

[[noreturn]] void FailInAClick() {
  RunApplication([](TellingDesktop&) {
    auto* button = new QPushButton("Go");
    QObject::connect(button, &QPushButton::clicked, [] {
      throw RunTimeFailure("not a whole number",
                           {.File = "User.tmp", .Line = 3, .Key = "UserNum", .Text = "x"});
    });
    button->show();
    QTest::mouseClick(button, Qt::LeftButton);
  });
}

TEST(ApplicationDeathTest, FailureInAnEventHandlerIsShownWithItsPlaceAndEndsWithStatus1) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(FailInAClick(), testing::ExitedWithCode(1),
              "box 'Run-time error': User.tmp:3: UserNum: not a whole number: 'x'");
}

TEST(ApplicationDeathTest, FailureIsOneLineOnStandardError) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(FailInAClick(), testing::ExitedWithCode(1),
              "tarvis: run-time error: User.tmp:3: UserNum: not a whole number: 'x'\n");
}

TEST(ApplicationDeathTest, FailureAtTheStartEndsAsOneInAHandlerDoes) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(RunApplication([](TellingDesktop&) { throw RunTimeFailure("subscript out of range"); }),
              testing::ExitedWithCode(1), "box 'Run-time error': subscript out of range");
}

TEST(ApplicationDeathTest, AnyOtherExceptionIsARunTimeErrorToo) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(RunApplication([](TellingDesktop&) { throw std::bad_alloc(); }), testing::ExitedWithCode(1),
              "box 'Run-time error': there is not enough memory");
}

TEST(ApplicationDeathTest, SecondFailureWhileTheFirstIsShownEndsAtOnce) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(RunApplication([](TellingDesktop& desktop) {
                desktop.onMessage = [] {
                  QTimer::singleShot(0, [] { throw RunTimeFailure("second"); });
                  QCoreApplication::processEvents();
                };
                throw RunTimeFailure("first");
              }),
              testing::ExitedWithCode(1), "box 'Run-time error': first\ntarvis: run-time error: second\n$");
}

[[noreturn]] void ShowArguments() {
  RunApplication([](TellingDesktop& desktop) {
    desktop.Diagnose("arguments: " + QCoreApplication::arguments().join(' ').toStdString());
    desktop.EndProcess(0);
  });
}

TEST(ApplicationDeathTest, ToolkitSeesNoneOfTheArguments) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(ShowArguments(), testing::ExitedWithCode(0), "arguments: tarvis\n$");
}

}  // namespace
}  // namespace tarvis
