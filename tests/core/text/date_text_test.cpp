// Dates as pages and files show them.
#include "text/date_text.h"

#include <gtest/gtest.h>

#include <clocale>

namespace tarvis {
namespace {

std::tm Time(int year, int month, int day, int hour, int minute, int second) {
  std::tm time{};
  time.tm_year = year - 1900;
  time.tm_mon = month - 1;
  time.tm_mday = day;
  time.tm_hour = hour;
  time.tm_min = minute;
  time.tm_sec = second;
  return time;
}

TEST(DateTimeText, WritesMonthAndMinutesWithTwoDigitsAnd24Hours) {
  EXPECT_EQ(DateTimeText(Time(2026, 3, 5, 17, 4, 9)), "2026/03/05 17:04:09");
  EXPECT_EQ(DateTimeText(Time(2026, 12, 31, 0, 0, 0)), "2026/12/31 00:00:00");
}

TEST(LongDateText, WritesEnglishMonthAndTwoDigitDay) {
  EXPECT_EQ(LongDateText(Time(2026, 3, 5, 0, 0, 0)), "March 05, 2026");
  EXPECT_EQ(LongDateText(Time(2026, 9, 30, 0, 0, 0)), "September 30, 2026");
}

TEST(LongDateText, IsTheSameInAnotherLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* locale : {"de_DE.UTF-8", "ja_JP.UTF-8", "C.UTF-8"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) continue;  // not on this system
    EXPECT_EQ(LongDateText(Time(2026, 10, 1, 0, 0, 0)), "October 01, 2026") << locale;
  }
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace tarvis
