// Work that takes long shows its progress and can be cancelled.
#include "preview/jobs/background_job.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>

namespace tarvis {
namespace {

TEST(BackgroundJob, ALongJobShowsItsProgressAndCanBeCancelled) {
  QWidget window;
  window.show();
  std::atomic<bool> stopped = false;
  QElapsedTimer time;
  time.start();
  BackgroundJob job(
      QStringLiteral("Saving"),
      [&](const Progress& progress) {
        while (progress(1, 4)) std::this_thread::yield();
        stopped = true;
        return QString();
      },
      &window);
  const QSignalSpy finished(&job, &BackgroundJob::Finished);
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.findChild<QProgressDialog*>() != nullptr; }));
  EXPECT_GE(time.elapsed(), 450);
  auto* dialog = window.findChild<QProgressDialog*>();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
  QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitFor([&] { return finished.count() == 1; }));
  EXPECT_TRUE(stopped);
  EXPECT_EQ(window.findChild<QProgressDialog*>(), nullptr);
}

TEST(BackgroundJob, AStuckJobIsLeftToItselfOnceNobodyHasPatience) {
  QWidget window;
  std::promise<void> release;
  const auto hasEnded = std::make_shared<std::atomic<bool>>(false);
  {
    BackgroundJob job(
        QStringLiteral("Printing"),
        [hasEnded, released = release.get_future().share()](const Progress&) {
          released.wait();
          *hasEnded = true;
          return QStringLiteral("bad");
        },
        &window);
    job.WaitAtMost(std::chrono::milliseconds(50));
  }
  EXPECT_FALSE(*hasEnded);
  release.set_value();
  EXPECT_TRUE(QTest::qWaitFor([&] { return hasEnded->load(); }));
}

TEST(BackgroundJob, AShortJobShowsNoProgress) {
  QWidget window;
  window.show();
  const auto fail = [](const Progress&) { return QStringLiteral("bad"); };
  BackgroundJob job(QStringLiteral("Saving"), fail, &window);
  const QSignalSpy finished(&job, &BackgroundJob::Finished);
  ASSERT_TRUE(QTest::qWaitFor([&] { return finished.count() == 1; }));
  EXPECT_EQ(finished.at(0).at(0).toString(), QStringLiteral("bad"));
  EXPECT_EQ(window.findChild<QProgressDialog*>(), nullptr);
}

}  // namespace
}  // namespace tarvis
