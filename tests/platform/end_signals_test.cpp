// Requests by the operating system to terminate.
#include "platform/end_signals.h"

#include <gtest/gtest.h>

#include <csignal>

namespace tarvis {
namespace {

TEST(EndSignals, AreAnsweredByWorkThatKeepsTheEventLoopWaiting) {
  int ends = 0;
  EndSignals endSignals([&ends] { ++ends; });
  endSignals.Answer();
  EXPECT_EQ(ends, 0);
  std::raise(SIGTERM);
  EXPECT_EQ(ends, 0);  // the signal alone does next to nothing
  endSignals.Answer();
  EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace tarvis
