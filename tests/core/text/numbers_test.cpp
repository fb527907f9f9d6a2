// Texts to numbers, strictly and leniently.
#include "text/numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/test_run.h"

namespace tarvis {
namespace {

struct Accepted {
  const char* Text;
  int Number;
};

class StrictIntegerAccepts : public testing::TestWithParam<Accepted> {};

TEST_P(StrictIntegerAccepts, TheText) {
  EXPECT_EQ(StrictInteger(GetParam().Text), GetParam().Number);
}

INSTANTIATE_TEST_SUITE_P(Numbers, StrictIntegerAccepts,
                         testing::Values(Accepted{"0", 0}, Accepted{"007", 7}, Accepted{"+5", 5},
                                         Accepted{"-5", -5}, Accepted{" 7 ", 7}, Accepted{"2.5", 2},
                                         Accepted{"-0.5", 0}, Accepted{"0.5", 0}, Accepted{"1.5", 2},
                                         Accepted{"3.5", 4}, Accepted{"-1.5", -2}, Accepted{"2.51", 3},
                                         Accepted{".5", 0}, Accepted{"5.", 5}, Accepted{"1E2", 100},
                                         Accepted{"1e-1", 0}, Accepted{"32767", 32767},
                                         Accepted{"32767.4", 32767}, Accepted{"-32768", -32768},
                                         Accepted{"-32768.5", -32768}));

class StrictIntegerRefuses : public testing::TestWithParam<const char*> {};

TEST_P(StrictIntegerRefuses, TheTextAndNamesIt) {
  const std::string text = GetParam();
  const std::string message = RunTimeFailureOf([&] { StrictInteger(text); });
  EXPECT_TRUE(message.starts_with("not a number") || message.starts_with("number out of range")) << message;
  EXPECT_TRUE(message.ends_with(": '" + text + "'")) << message;
}

INSTANTIATE_TEST_SUITE_P(Texts, StrictIntegerRefuses,
                         testing::Values("", " ", "x", "7 8", "1,000", "&H1F", "0x1F", "--1", "+-1", "-+1",
                                         "+", "-", ".", "e5", "1e", "inf", "-inf", "nan", "+nan", "32768",
                                         "32767.5", "-32769", "-32768.51", "1e999", "99999999999999999999"));

TEST(StrictLong, Takes32Bits) {
  EXPECT_EQ(StrictLong("2147483647"), 2147483647);
  EXPECT_EQ(StrictLong("-2147483648"), -2147483648);
  EXPECT_EQ(RunTimeFailureOf([] { StrictLong("2147483648"); }), "number out of range: '2147483648'");
}

TEST(StrictReal, TakesFractions) {
  EXPECT_DOUBLE_EQ(StrictReal(" -12.25 "), -12.25);
  EXPECT_EQ(RunTimeFailureOf([] { StrictReal("1.5x"); }), "not a number: '1.5x'");
  EXPECT_EQ(RunTimeFailureOf([] { StrictReal(""); }), "not a number: ''");
}

TEST(StrictReal, IsZeroForANumberThatIsTooSmallForADouble) {
  for (const std::string text : {"1e-400", "-1E-400", "0.001e-999999999999999999999", "12345e-404"}) {
    EXPECT_EQ(StrictReal(text), 0) << text;
    EXPECT_EQ(StrictInteger(text), 0) << text;
    EXPECT_EQ(LenientReal(text + "mm"), 0) << text;
  }
  EXPECT_EQ(StrictReal("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(StrictReal("0e999"), 0);
}

TEST(StrictReal, IsOutOfRangeForANumberThatIsTooLargeForADouble) {
  for (const std::string& text :
       std::vector<std::string>{"1e400", "-1e+400", "0.001e99999999999999999999", "1" + std::string(400, '0'),
                                "1" + std::string(400, '0') + ".5"}) {
    EXPECT_TRUE(RunTimeFailureOf([&] { StrictReal(text); }).starts_with("number out of range")) << text;
  }
  EXPECT_DOUBLE_EQ(StrictReal("1" + std::string(400, '0') + "e-400"), 1) << "only the exponent was large";
}

TEST(LenientReal, TakesTheLongestNumericPrefix) {
  EXPECT_DOUBLE_EQ(LenientReal("12.5mm"), 12.5);
  EXPECT_DOUBLE_EQ(LenientReal("  +3"), 3);
  EXPECT_DOUBLE_EQ(LenientReal("-4 5"), -4);
  EXPECT_DOUBLE_EQ(LenientReal("1e"), 1);
  EXPECT_DOUBLE_EQ(LenientReal("1,5"), 1);
}

TEST(LenientReal, IsBeyondAllBoundsForANumberThatIsTooLargeForADouble) {
  EXPECT_GT(LenientReal("1e999mm"), 1e300);
  EXPECT_LT(LenientReal("-" + std::string(400, '9')), -1e300);
}

TEST(LenientReal, GivesZeroForATextWithoutNumber) {
  for (const char* text : {"", " ", "mm", "-", "inf", "-inf", "nan", "+-1"})
    EXPECT_EQ(LenientReal(text), 0) << text;
}

TEST(StrictInteger, ShowsAnEndlessTextInOneShortLine) {
  const std::string message = RunTimeFailureOf([] { StrictInteger(std::string(1000000, 'x') + "\n"); });
  EXPECT_EQ(message, "not a number: '" + std::string(60, 'x') + "...'");
}

}  // namespace
}  // namespace tarvis
