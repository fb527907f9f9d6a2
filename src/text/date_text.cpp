#include "text/date_text.h"

#include <array>

namespace tarvis {
namespace {

constexpr std::array Months = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};

std::string Padded(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

}  // namespace

std::string DateTimeText(const std::tm& time) {
  return Padded(time.tm_year + 1900, 4) + "/" + Padded(time.tm_mon + 1, 2) + "/" + Padded(time.tm_mday, 2) +
         " " + Padded(time.tm_hour, 2) + ":" + Padded(time.tm_min, 2) + ":" + Padded(time.tm_sec, 2);
}

std::string LongDateText(const std::tm& time) {
  return std::string(Months.at(static_cast<std::size_t>(time.tm_mon))) + " " + Padded(time.tm_mday, 2) +
         ", " + Padded(time.tm_year + 1900, 4);
}

}  // namespace tarvis
