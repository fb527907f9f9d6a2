// The parameter block: parameters with their values, switch parameters digit by digit, one comment.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "text/checked_array.h"

namespace tarvis {

// All texts are finished by the host.
struct UserPrm {
  std::string No;  // compared with UserSwitch.No
  std::string Name;
  std::string Value;
  std::string Default;
  std::string Unit;
};

// First and Count hold numbers, which only the reports convert.
struct SwitchDigit {
  std::string First;
  std::string Count;
  std::string Value;
  std::string Default;
  std::string Text;  // heading, CR LF, value, colon, meaning
};

struct UserSwitch {
  std::string No;
  std::string Value;
  std::string Default;
  std::string Name;
  std::array<SwitchDigit, 4> Digit;
};

// Filled by the readers of User.tmp, Trace.tmp, RealTrace.tmp and Sim.tmp; never cleared between files.
struct UserData {
  std::int16_t UserNum = 0;
  CheckedArray<UserPrm> Prm{"UserData.Prm"};  // 0 to UserNum, the last one a spare
  std::int16_t SwitchNum = 0;
  CheckedArray<UserSwitch> Switches{"UserData.Switches"};  // 0 to SwitchNum, the last one a spare
  std::int16_t CommentCnt = 0;
  std::string Comment;
};

}  // namespace tarvis
