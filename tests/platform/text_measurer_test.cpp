// Widths of text for composing.
#include "platform/system/text_measurer.h"

#include <gtest/gtest.h>

namespace tarvis {
namespace {

TEST(QtTextMeasurer, AdvancesAreArialsInBothWeights) {
  const QtTextMeasurer measurer;
  EXPECT_FLOAT_EQ(measurer.AdvanceEm(U'0', false), 1139.0F / 2048);
  EXPECT_FLOAT_EQ(measurer.AdvanceEm(U'W', true), 1933.0F / 2048);
  EXPECT_FLOAT_EQ(measurer.AdvanceEm(U'漢', false), 1);
  EXPECT_FLOAT_EQ(measurer.AdvanceEm(char32_t{0x301}, false), 0);
}

}  // namespace
}  // namespace tarvis
