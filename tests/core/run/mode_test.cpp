// The texts by which the host names what a run prints.
#include "run/mode.h"

#include <gtest/gtest.h>

namespace tarvis {
namespace {

TEST(Mode, IsNamedByItsTextAndTheOtherWayRound) {
  for (const char* text : {"User", "UPWizard", "Trace", "RealTrace", "Mecha", "Sim", "SimEx", "IdxTbl",
                           "ZoneTbl", "JogTbl", "PrnSetting"}) {
    EXPECT_NE(ModeOf(text), Mode::None) << text;
    EXPECT_EQ(TextOf(ModeOf(text)), text);
  }
  EXPECT_EQ(ModeOf("RealTrace"), Mode::RealTrace);
  EXPECT_EQ(ModeOf("PrnSetting"), Mode::PrnSetting);
}

TEST(Mode, IsNoneForATextThatNamesNone) {
  for (const char* text : {"", "user", "Simulation", "User "}) EXPECT_EQ(ModeOf(text), Mode::None) << text;
  EXPECT_EQ(TextOf(Mode::None), "");
}

}  // namespace
}  // namespace tarvis
