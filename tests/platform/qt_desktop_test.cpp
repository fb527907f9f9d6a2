// Message boxes, beeps, standard error and the end of the process.
#include "platform/qt_desktop.h"

#include <gtest/gtest.h>

#include "platform/message_watch.h"

namespace tarvis {
namespace {

TEST(QtDesktop, MessageBoxShowsTheExactWordsAnOkButtonAndNoIcon) {
  MessageWatch watch;
  QtDesktop().ShowMessage("Printing Error", "Argument is wrong.\nPrinting Process is canceled.");
  ASSERT_EQ(watch.Seen().size(), 1U);
  const SeenMessage& seen = watch.Seen().front();
  EXPECT_EQ(seen.Title, "Printing Error");
  EXPECT_EQ(seen.Text, "Argument is wrong.\nPrinting Process is canceled.");
  EXPECT_EQ(seen.Icon, QMessageBox::NoIcon);
  EXPECT_EQ(seen.Buttons, QMessageBox::Ok);
  EXPECT_TRUE(seen.Modal);
}

TEST(QtDesktop, MessageBoxTakesMarkupAsPlainWords) {
  MessageWatch watch;
  QtDesktop().ShowMessage("Run-time error", "User.tmp:3: <b>bold</b>");
  EXPECT_EQ(watch.Seen().at(0).Format, Qt::PlainText);
}

TEST(QtDesktop, MessageBoxOfABusyProgramHasTheUsualPointer) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  QApplication::setOverrideCursor(Qt::BusyCursor);
  MessageWatch watch;
  QtDesktop().ShowMessage("Printing Error", "Tracing File is wrong.");
  EXPECT_FALSE(watch.Seen().at(0).Busy);
  for (const Qt::CursorShape shape : {Qt::BusyCursor, Qt::WaitCursor}) {
    ASSERT_NE(QApplication::overrideCursor(), nullptr) << "the program goes on being busy";
    EXPECT_EQ(QApplication::overrideCursor()->shape(), shape);
    QApplication::restoreOverrideCursor();
  }
}

TEST(QtDesktop, MessageBoxBelongsToAWindowThatHasOnlyJustBeenOpened) {
  QWidget window;
  window.show();
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  MessageWatch watch;
  QtDesktop().ShowMessage("Input Error", "Try with  Less Characters.");
  EXPECT_EQ(watch.Seen().at(0).Owner, &window);
}

TEST(QtDesktop, BeepsThatFollowOneAnotherAreHeardOneByOne) {
  QtDesktop desktop;
  const auto start = std::chrono::steady_clock::now();
  for (int beep = 0; beep < 5; ++beep) desktop.Beep();
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(4 * 150));
}

TEST(QtDesktop, DiagnosisIsOneLineOnStandardError) {
  testing::internal::CaptureStderr();
  QtDesktop().Diagnose("User.tmp:3: unknown key 'x'");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "tarvis: User.tmp:3: unknown key 'x'\n");
}

// As newer toolkits do when they lose their display.
TEST(QtDesktopDeathTest, MessageBoxThatEndsUnansweredEndsTheProcess) {
  EXPECT_EXIT(
      {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(1); });
        QtDesktop().ShowMessage("Printing Error", "Argument is wrong.");
        std::_Exit(99);
      },
      testing::ExitedWithCode(1), "");
}

TEST(QtDesktop, MessageBoxThatIsClosedIsAnswered) {
  QTimer::singleShot(0, qApp, [] {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
  QtDesktop().ShowMessage("Printing Error", "Argument is wrong.");  // the process goes on
}

TEST(QtDesktopDeathTest, EndOfTheProcessHasTheStatusAndRunsNoExitHandler) {
  EXPECT_EXIT(
      {
        std::atexit([] { std::_Exit(99); });
        QtDesktop().EndProcess(1);
      },
      testing::ExitedWithCode(1), "");
}

}  // namespace
}  // namespace tarvis
