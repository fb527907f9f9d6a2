#include "pictures/picture_budget.h"

namespace tarvis {
namespace {

// The clock is read after so many steps; a step is about what a point takes.
constexpr std::size_t StepsBetweenLooks = 4096;
constexpr std::size_t StepsOfRecord = 64;
constexpr std::size_t StepsOfCharacter = 16;

// False if `used` would pass `most`; nothing overflows.
bool Take(std::size_t& used, std::size_t count, std::size_t most) {
  if (count > most - used) return false;
  used += count;
  return true;
}

}  // namespace

void PictureBudget::TakeKeptBytes(std::size_t count) {
  if (!Take(kept_, count, MostKeptBytes)) throw TooCostly("it is too large");
}

void PictureBudget::TakeDecodedBytes(std::size_t count) {
  if (!Take(decoded_, count, MostDecodedBytes)) throw TooCostly("its bitmaps are too large");
  TakeSteps(count / 64);
}

void PictureBudget::TakeElements(std::size_t count) {
  if (!Take(elements_, count, MostElements)) throw TooCostly("it draws too much");
  TakeSteps(count);
}

void PictureBudget::TakeCharacters(std::size_t count) {
  if (!Take(characters_, count, MostCharacters)) throw TooCostly("it holds too much text");
  TakeSteps(count * StepsOfCharacter);
}

void PictureBudget::TakeRecord() {
  TakeSteps(StepsOfRecord);
}

void PictureBudget::EnterPicture() {
  if (depth_ >= MostDepth) throw TooCostly("it holds pictures inside pictures");
  ++depth_;
}

void PictureBudget::TakeSteps(std::size_t count) {
  steps_ += count;
  if (steps_ < StepsBetweenLooks) return;
  steps_ = 0;
  if (answerEndRequest_) answerEndRequest_();
  if (std::clock() - start_ > mostSeconds_ * CLOCKS_PER_SEC) throw TooCostly("it takes too long to draw");
}

}  // namespace tarvis
