#include "preview/output/content_compressor.h"

#include <libdeflate.h>

#include <algorithm>
#include <memory>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

namespace tarvis {
namespace {

using Deflate = std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)>;

Deflate NewDeflate(int level) {
  Deflate deflate{libdeflate_alloc_compressor(level), libdeflate_free_compressor};
  if (!deflate) throw std::bad_alloc();
  return deflate;
}

// `room` is kept from one content to the next.
std::string Compressed(const Deflate& deflate, const std::string& content, std::vector<char>& room) {
  room.resize(std::max(room.size(), libdeflate_zlib_compress_bound(deflate.get(), content.size())));
  const std::size_t size =
      libdeflate_zlib_compress(deflate.get(), content.data(), content.size(), room.data(), room.size());
  return {room.data(), size};
}

}  // namespace

ContentCompressor::ContentCompressor(int level) : level_(level) {
  if (std::thread::hardware_concurrency() < 2) return;
  try {
    thread_ = std::thread([this] { Work(); });
  } catch (const std::system_error&) {
    // The system gives no more threads; `Finish` does the work.
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
  if (thread_.joinable()) thread_.join();
}

void ContentCompressor::Work() {
  try {
    const Deflate deflate = NewDeflate(level_);
    std::vector<char> room;
    while (std::string* content = TakeNext()) *content = Compressed(deflate, *content, room);
  } catch (...) {
    const std::lock_guard lock(mutex_);
    failure_ = std::current_exception();
  }
}

// Waits for the next content; nullptr when there will be none.
std::string* ContentCompressor::TakeNext() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return isComplete_ || next_ < contents_.size(); });
  return next_ < contents_.size() ? &contents_[next_++] : nullptr;
}

}  // namespace tarvis
