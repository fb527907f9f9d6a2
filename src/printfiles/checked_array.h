// Arrays whose every access is checked, for indices that can come from a file.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "printfiles/run_time_failure.h"

namespace tarvis {

// Indices run from 0 to HighestIndex(). An index outside throws RunTimeFailure that names `name`.
template <typename Element>
class CheckedArray {
 public:
  explicit CheckedArray(const char* name) : name_(name) {}

  // Drops what the array held and makes indices 0 to `highest`; a `highest` below -1 throws RunTimeFailure.
  void Resize(int highest) {
    if (highest < -1) Fail(highest);
    elements_.clear();
    elements_.resize(static_cast<std::size_t>(highest + 1));
  }
  // The same, but keeps the elements that remain in range.
  void ResizeKeeping(int highest) {
    if (highest < -1) Fail(highest);
    elements_.resize(static_cast<std::size_t>(highest + 1));
  }
  void Clear() { elements_.clear(); }

  int HighestIndex() const { return static_cast<int>(elements_.size()) - 1; }

  Element& operator[](int index) {
    if (index < 0 || index > HighestIndex()) Fail(index);
    return elements_[static_cast<std::size_t>(index)];
  }
  const Element& operator[](int index) const {
    if (index < 0 || index > HighestIndex()) Fail(index);
    return elements_[static_cast<std::size_t>(index)];
  }

 private:
  [[noreturn]] void Fail(int index) const {
    throw RunTimeFailure("subscript out of range",
                         {.File = {}, .Line = 0, .Key = name_, .Text = std::to_string(index)});
  }

  const char* name_;
  std::vector<Element> elements_;
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
