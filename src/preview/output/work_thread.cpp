#include "preview/output/work_thread.h"

#include <system_error>
#include <utility>

namespace tarvis {

WorkThread::WorkThread(std::size_t mostWaiting, Work last)
    : mostWaiting_(mostWaiting), last_(std::move(last)) {
  try {
    thread_ = std::thread([this] { Run(); });
  } catch (const std::system_error&) {
    // The system gives no more threads; whoever adds work does it.
  }
}

WorkThread::~WorkThread() {
  {
    const std::lock_guard lock(mutex_);
    waiting_.clear();
  }
  End();
}

void WorkThread::Add(Work work) {
  if (!thread_.joinable()) return DoAtOnce(work);
  {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return waiting_.size() < mostWaiting_ || failure_; });
    if (failure_) return;
    waiting_.push_back(std::move(work));
  }
  changed_.notify_all();
}

void WorkThread::DoAtOnce(const Work& work) {
  if (failure_) return;
  try {
    work();
  } catch (...) {
    failure_ = std::current_exception();
  }
}

void WorkThread::Finish() {
  End();
  if (failure_) std::rethrow_exception(failure_);
}

void WorkThread::End() {
  {
    const std::lock_guard lock(mutex_);
    isComplete_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable()) return thread_.join();
  DoLast();
}

void WorkThread::DoLast() {
  std::exchange(last_, [] {})();
}

void WorkThread::Run() {
  try {
    for (Work work; TakeNext(work);) work();
  } catch (...) {
    const std::lock_guard lock(mutex_);
    failure_ = std::current_exception();
    changed_.notify_all();
  }
  DoLast();
}

// Waits for the next piece of work; false when there will be none.
bool WorkThread::TakeNext(Work& work) {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return isComplete_ || !waiting_.empty(); });
  if (waiting_.empty()) return false;
  work = std::move(waiting_.front());
  waiting_.pop_front();
  changed_.notify_all();
  return true;
}

}  // namespace tarvis
