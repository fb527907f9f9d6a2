// A thread that does pieces of work in the order in which it gets them.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace tarvis {

class WorkThread {
 public:
  using Work = std::function<void()>;

  // At most so many pieces of work wait for the thread. `last` is done there at the end, whatever came
  // before, and must not throw: what belongs to the thread ends in it.
  explicit WorkThread(
      std::size_t mostWaiting, Work last = [] {});
  // Leaves out what was not begun.
  ~WorkThread();
  WorkThread(const WorkThread&) = delete;
  WorkThread& operator=(const WorkThread&) = delete;

  // Waits as long as too much is waiting. After work that threw, all further work is left out.
  void Add(Work work);
  // Waits until all is done. To be called once, as the last one. Throws what the work threw.
  void Finish();

 private:
  void Run();
  void DoAtOnce(const Work& work);
  bool TakeNext(Work& work);
  void End();
  void DoLast();

  const std::size_t mostWaiting_;
  std::mutex mutex_;  // guards all that follows but the thread
  std::condition_variable changed_;
  std::deque<Work> waiting_;
  bool isComplete_ = false;
  std::exception_ptr failure_;
  Work last_;  // of the thread, if there is one
  std::thread thread_;
};

}  // namespace tarvis
