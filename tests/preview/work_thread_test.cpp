// Work that another thread does in order.
#include "preview/output/work_thread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <vector>

namespace tarvis {
namespace {

TEST(WorkThread, DoesItsWorkInOrderInAnotherThread) {
  std::vector<int> done;
  std::thread::id worker;
  WorkThread thread(2);
  for (int number = 0; number < 100; ++number) thread.Add([&done, number] { done.push_back(number); });
  thread.Add([&worker] { worker = std::this_thread::get_id(); });
  thread.Finish();
  ASSERT_EQ(done.size(), 100U);
  EXPECT_TRUE(std::ranges::is_sorted(done));
  EXPECT_NE(worker, std::this_thread::get_id());
}

TEST(WorkThread, EndsWhatBelongsToItInItself) {
  std::thread::id worker;
  std::vector<std::thread::id> ended;
  const auto note = [&] { ended.push_back(std::this_thread::get_id()); };
  const auto work = [&] { worker = std::this_thread::get_id(); };
  {
    WorkThread finished(2, note);
    finished.Add(work);
    finished.Finish();
    EXPECT_THAT(ended, testing::ElementsAre(worker));
  }
  EXPECT_EQ(ended.size(), 1U) << "once";
  WorkThread(2, note);
  EXPECT_EQ(ended.size(), 2U) << "without work";
  WorkThread failing(2, note);
  failing.Add([] { throw std::runtime_error("no"); });
  EXPECT_THROW(failing.Finish(), std::runtime_error);
  EXPECT_EQ(ended.size(), 3U) << "after work that failed";
}

TEST(WorkThread, LetsNoMoreThanItsLimitWait) {
  std::atomic<int> added = 0;
  std::atomic<int> most = 0;
  WorkThread thread(3);
  for (int number = 0; number < 50; ++number) {
    thread.Add([&added, &most] { most = std::max(most.load(), --added); });
    ++added;
  }
  thread.Finish();
  EXPECT_LE(most, 4);  // those that wait, and the one that is being added
}

TEST(WorkThread, PassesOnWhatItsWorkThrowsAndLeavesOutTheRest) {
  int done = 0;
  WorkThread thread(2);
  thread.Add([&] { ++done; });
  thread.Add([] { throw std::runtime_error("no"); });
  for (int number = 0; number < 10; ++number) thread.Add([&] { ++done; });
  EXPECT_THROW(thread.Finish(), std::runtime_error);
  EXPECT_EQ(done, 1);
}

TEST(WorkThread, LeavesOutWhatItHasNotBegunWhenItIsGivenUp) {
  std::atomic<int> done = 0;
  {
    auto waits = std::make_shared<int>();
    WorkThread thread(10);
    // Goes on until the work after it is dropped.
    thread.Add([isWaiting = std::weak_ptr(waits)] {
      const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
      while (!isWaiting.expired() && std::chrono::steady_clock::now() < end) std::this_thread::yield();
    });
    for (int number = 0; number < 5; ++number) thread.Add([&done, waits] { ++done; });
    waits.reset();
  }
  EXPECT_EQ(done, 0);
}

}  // namespace
}  // namespace tarvis
