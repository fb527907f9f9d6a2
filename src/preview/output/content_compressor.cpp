#include "preview/output/content_compressor.h"

#include <algorithm>
#include <qpdf/Pl_Flate.hh>
#include <qpdf/Pl_String.hh>
#include <system_error>
#include <utility>

namespace tarvis {
namespace {

constexpr unsigned MostThreads = 3;  // one thread paints as fast as so many compress

std::string Compressed(const std::string& content) {
  std::string bytes;
  Pl_String sink("content", nullptr, bytes);
  Pl_Flate deflate("content", &sink, Pl_Flate::a_deflate);
  deflate.writeString(content);
  deflate.finish();
  return bytes;
}

}  // namespace

ContentCompressor::ContentCompressor() {
  const unsigned processors = std::max(1U, std::thread::hardware_concurrency());
  try {
    for (unsigned count = std::min(processors - 1, MostThreads); count > 0; --count)
      threads_.emplace_back([this] { Work(); });
  } catch (const std::system_error&) {
    // The system gives no more threads; those that there are do the work.
  }
}

ContentCompressor::~ContentCompressor() {
  {
    const std::lock_guard lock(mutex_);
    next_ = contents_.size();
  }
  End();
}

void ContentCompressor::Add(std::string content) {
  {
    const std::lock_guard lock(mutex_);
    contents_.push_back(std::move(content));
  }
  changed_.notify_one();
}

std::deque<std::string> ContentCompressor::Finish() {
  {
    const std::lock_guard lock(mutex_);
    isComplete_ = true;
  }
  changed_.notify_all();
  Work();
  End();
  if (failure_) std::rethrow_exception(failure_);
  return std::exchange(contents_, {});
}

void ContentCompressor::End() {
  {
    const std::lock_guard lock(mutex_);
    isComplete_ = true;
  }
  changed_.notify_all();
  for (std::thread& thread : threads_) thread.join();
  threads_.clear();
}

void ContentCompressor::Work() {
  while (std::string* content = TakeNext()) {
    try {
      *content = Compressed(*content);
    } catch (...) {
      const std::lock_guard lock(mutex_);
      failure_ = std::current_exception();
    }
  }
}

// Waits for the next content; nullptr when there will be none.
std::string* ContentCompressor::TakeNext() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return isComplete_ || next_ < contents_.size(); });
  return next_ < contents_.size() ? &contents_[next_++] : nullptr;
}

}  // namespace tarvis
