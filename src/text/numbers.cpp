#include "text/numbers.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "text/excerpt.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

[[noreturn]] void Fail(const char* reason, std::string_view text) {
  throw RunTimeFailure(reason, {.File = {}, .Line = 0, .Key = {}, .Text = Excerpt(text)});
}

std::string_view TrimBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
  return text;
}

// Takes a plus sign off, but only where a number follows; the library's conversion doesn't know it.
std::string_view WithoutPlus(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  return text;
}

// Whether the library's conversion would read a word such as "inf" as a number.
bool StartsWithLetter(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && std::isalpha(static_cast<unsigned char>(text.front())) != 0;
}

// The position of the first digit of `number` that isn't 0: 0 for the place right before the decimal point, 1
// for tens, -1 for tenths, and so on; the exponent counts.
std::int64_t PlaceOfFirstDigit(std::string_view number) {
  constexpr std::int64_t Far = std::int64_t{1} << 40;  // outweighs the digits of any text
  const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
  const std::string_view digits = number.substr(0, mark);
  const std::string_view exponent = WithoutPlus(number.substr(std::min(mark + 1, number.size())));
  std::int64_t shift =
      exponent.starts_with('-') ? -Far : Far;  // stays for an exponent beyond the type's range
  if (exponent.empty()) shift = 0;
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), shift);
  const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
  const auto first = static_cast<std::int64_t>(std::min(digits.find_first_of("123456789"), digits.size()));
  return std::clamp(shift, -Far, Far) + (first < point ? point - first - 1 : point - first);
}

// What the library's conversion leaves alone because no double holds it: 0 for a number that is too small,
// and infinity with its sign for one that is too large.
double BeyondDouble(std::string_view number) {
  if (PlaceOfFirstDigit(number) < 0) return 0;
  return number.starts_with('-') ? -HUGE_VAL : HUGE_VAL;
}

// Rounds to the nearest whole number, halves to the even one, in the range of Integer.
template <typename Integer>
Integer StrictWhole(std::string_view text) {
  const double rounded = std::nearbyint(StrictReal(text));
  if (rounded < std::numeric_limits<Integer>::min() || rounded > std::numeric_limits<Integer>::max()) {
    Fail("number out of range", text);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

double StrictReal(std::string_view text) {
  const std::string_view number = WithoutPlus(TrimBlanks(text));
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (StartsWithLetter(number) || error == std::errc::invalid_argument ||
      end != number.data() + number.size()) {
    Fail("not a number", text);
  }
  if (error == std::errc::result_out_of_range) value = BeyondDouble(number);
  if (std::isinf(value)) Fail("number out of range", text);
  return value;
}

std::int16_t StrictInteger(std::string_view text) {
  return StrictWhole<std::int16_t>(text);
}
std::int32_t StrictLong(std::string_view text) {
  return StrictWhole<std::int32_t>(text);
}

double LenientReal(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const std::string_view number = WithoutPlus(text);
  if (StartsWithLetter(number)) return 0;
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  return BeyondDouble(std::string_view(number.data(), end));
}

}  // namespace tarvis
