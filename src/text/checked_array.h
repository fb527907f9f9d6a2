// Arrays whose every access is checked, for indices that can come from a file.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "text/run_time_failure.h"

namespace tarvis {

// Indices run from 0 to HighestIndex(). An index outside throws RunTimeFailure that names `name`.
template <typename Element>
class CheckedArray {
 public:
  explicit CheckedArray(const char* name) : name_(name) {}

  // Drops what the array held and makes indices 0 to `highest`; a `highest` below -1 throws RunTimeFailure.
  // Costs no more than the elements touched since the last time, so that a file full of counts is read as
  // fast as any other.
  void Resize(int highest) {
    if (highest < -1) Fail(highest);
    for (std::size_t index = firstTouched_; index < endTouched_; ++index) elements_[index] = Element();
    firstTouched_ = endTouched_ = 0;
    if (Size(highest) > elements_.size()) elements_.resize(Size(highest));
    highest_ = highest;
  }
  // The same, but keeps the elements that remain in range.
  void ResizeKeeping(int highest) {
    if (highest < -1) Fail(highest);
    elements_.resize(Size(highest));
    firstTouched_ = std::min(firstTouched_, elements_.size());
    endTouched_ = std::min(endTouched_, elements_.size());
    highest_ = highest;
  }
  void Clear() { ResizeKeeping(-1); }

  int HighestIndex() const { return highest_; }

  Element& operator[](int index) {
    const std::size_t position = Position(index);
    firstTouched_ = firstTouched_ == endTouched_ ? position : std::min(firstTouched_, position);
    endTouched_ = std::max(endTouched_, position + 1);
    return elements_[position];
  }
  const Element& operator[](int index) const { return elements_[Position(index)]; }

 private:
  static std::size_t Size(int highest) { return static_cast<std::size_t>(highest + 1); }

  std::size_t Position(int index) const {
    if (index < 0 || index > highest_) Fail(index);
    return static_cast<std::size_t>(index);
  }

  [[noreturn]] void Fail(int index) const {
    throw RunTimeFailure("subscript out of range",
                         {.File = {}, .Line = 0, .Key = name_, .Text = std::to_string(index)});
  }

  const char* name_;
  std::vector<Element> elements_;  // those above highest_ and those never touched are as new
  int highest_ = -1;
  std::size_t firstTouched_ = 0;
  std::size_t endTouched_ = 0;
};

// A fixed array with the indices Lowest to Highest. An index outside throws RunTimeFailure.
template <typename Element, int Lowest, int Highest>
class BoundedArray {
 public:
  Element& operator[](int index) { return elements_[Position(index)]; }
  const Element& operator[](int index) const { return elements_[Position(index)]; }

  static constexpr int LowestIndex() { return Lowest; }
  static constexpr int HighestIndex() { return Highest; }

  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

 private:
  static std::size_t Position(int index) {
    if (index < Lowest || index > Highest) {
      throw RunTimeFailure("subscript out of range",
                           {.File = {}, .Line = 0, .Key = {}, .Text = std::to_string(index)});
    }
    return static_cast<std::size_t>(index - Lowest);
  }

  std::array<Element, static_cast<std::size_t>(Highest - Lowest + 1)> elements_;
};

}  // namespace tarvis
