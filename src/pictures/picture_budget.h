// What loading one picture may cost. Files of a few kilobytes can ask for gigabytes or minutes; each place
// that takes memory or time in proportion to a number of the file takes it from here first.
#pragma once

#include <cstddef>
#include <ctime>
#include <functional>
#include <stdexcept>

namespace tarvis {

// A picture that costs more than any picture of a report needs; the text says what there is too much of.
class TooCostly : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// All members throw TooCostly once the limit is passed.
class PictureBudget {
 public:
  // Vectors that hold what is kept may take nearly twice as much while they grow.
  static constexpr std::size_t MostKeptBytes = std::size_t{120} << 20;
  static constexpr std::size_t MostDecodedBytes = std::size_t{192} << 20;
  static constexpr std::size_t MostElements = std::size_t{16} << 20;
  static constexpr std::size_t MostCharacters = 100000;
  static constexpr int MostDepth = 4;    // of pictures inside pictures
  static constexpr int MostSeconds = 5;  // of computing, by default

  // `answerEndRequest` is called again and again; it may end the process and not return.
  explicit PictureBudget(std::function<void()> answerEndRequest = {}, int mostSeconds = MostSeconds)
      : answerEndRequest_(std::move(answerEndRequest)), mostSeconds_(mostSeconds), start_(std::clock()) {}

  // Memory for what is kept to be painted.
  void TakeKeptBytes(std::size_t count);
  // Memory for pixels, from one decoded bitmap to the next.
  void TakeDecodedBytes(std::size_t count);
  // Points of outlines, boxes of regions, steps of gradients.
  void TakeElements(std::size_t count);
  void TakeCharacters(std::size_t count);
  // A record.
  void TakeRecord();
  // Pictures may hold pictures, each of which enters before it is loaded and leaves afterwards.
  void EnterPicture();
  void LeavePicture() { --depth_; }

 private:
  void TakeSteps(std::size_t count);

  std::function<void()> answerEndRequest_;
  int mostSeconds_;
  std::clock_t start_;
  std::size_t kept_ = 0;
  std::size_t decoded_ = 0;
  std::size_t elements_ = 0;
  std::size_t characters_ = 0;
  std::size_t steps_ = 0;  // since the clock was read
  int depth_ = 0;
};

}  // namespace tarvis
