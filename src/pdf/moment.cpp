#include "pdf/moment.h"

#include <charconv>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

#include "pdf/pdf_error.h"
#include "text/excerpt.h"

namespace tarvis {
namespace {

constexpr std::string_view DayForm = "0000-00-00";
constexpr std::string_view MomentForm = "0000-00-00T00:00:00";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Whether `text` has the length of `form`, a digit for each zero of it, and its other characters in their
// places.
bool HasForm(std::string_view text, std::string_view form) {
  if (text.size() != form.size()) return false;
  for (std::size_t index = 0; index < form.size(); ++index) {
    if (form[index] == '0' ? !IsDigit(text[index]) : text[index] != form[index]) return false;
  }
  return true;
}

template <typename Number>
std::optional<Number> NumberOf(std::string_view digits) {
  Number number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

int Part(std::string_view text, std::size_t start, std::size_t length) {
  return start < text.size() ? NumberOf<int>(text.substr(start, length)).value_or(0) : 0;
}

// The parts as they are written; nothing for a date or a time that no clock shows.
std::optional<std::tm> ClockOf(std::string_view text) {
  const int year = Part(text, 0, 4);
  const auto month = static_cast<unsigned>(Part(text, 5, 2));
  const auto day = static_cast<unsigned>(Part(text, 8, 2));
  const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                         std::chrono::day(day)};
  std::tm clock{};
  clock.tm_year = year - 1900;
  clock.tm_mon = static_cast<int>(month) - 1;
  clock.tm_mday = static_cast<int>(day);
  clock.tm_hour = Part(text, 11, 2);
  clock.tm_min = Part(text, 14, 2);
  clock.tm_sec = Part(text, 17, 2);
  clock.tm_isdst = -1;
  const bool isTime = clock.tm_hour < 24 && clock.tm_min < 60 && clock.tm_sec < 60;
  if (!date.ok() || year < 1900 || !isTime) return std::nullopt;
  return clock;
}

std::time_t UniversalTime(const std::tm& clock) {
  const std::chrono::sys_days day = std::chrono::year(clock.tm_year + 1900) /
                                    std::chrono::month(static_cast<unsigned>(clock.tm_mon) + 1) /
                                    std::chrono::day(static_cast<unsigned>(clock.tm_mday));
  const auto moment = day + std::chrono::hours(clock.tm_hour) + std::chrono::minutes(clock.tm_min) +
                      std::chrono::seconds(clock.tm_sec);
  return std::chrono::system_clock::to_time_t(moment);
}

std::optional<std::time_t> MomentOf(std::string_view text) {
  constexpr std::int64_t Latest = 253402300799;  // the last second of the year 9999
  if (text.starts_with('@')) {
    const std::optional<std::int64_t> seconds = NumberOf<std::int64_t>(text.substr(1));
    if (!seconds || *seconds < 0 || *seconds > Latest) return std::nullopt;
    return static_cast<std::time_t>(*seconds);
  }
  const bool isUniversal = text.ends_with('Z');
  if (isUniversal) text.remove_suffix(1);
  if (!HasForm(text, DayForm) && !HasForm(text, MomentForm)) return std::nullopt;
  std::optional<std::tm> clock = ClockOf(text);
  if (!clock) return std::nullopt;
  return isUniversal ? UniversalTime(*clock) : std::mktime(&*clock);
}

}  // namespace

std::time_t MomentNamed(const std::string& text) {
  const std::optional<std::time_t> moment = MomentOf(text);
  if (!moment) {
    throw PdfError("--date: not a date such as 2026-11-21 or 2026-11-21T19:20:44, nor @ and seconds: '" +
                   Excerpt(text) + "'");
  }
  return *moment;
}

std::tm LocalTimeOf(std::time_t moment) {
  const std::tm* clock = std::localtime(&moment);
  return clock == nullptr ? std::tm{} : *clock;
}

}  // namespace tarvis
