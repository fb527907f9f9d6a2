// Parameter blocks of any size, for benchmarks.
#pragma once

#include <array>
#include <string>

#include "run/user_data.h"

namespace tarvis {

// `switches` of the parameters, evenly spread, are switch parameters with four digit groups each.
inline void FillUserData(UserData& data, int parameters, int switches) {
  static const std::array<const char*, 5> Names{"Speed Loop Gain", "Position Loop Integral Time Constant",
                                                "Forward External Torque Limit", "Jog Speed",
                                                "Acceleration Time of the Soft Start, Second Gain Set"};
  data.UserNum = static_cast<std::int16_t>(parameters);
  data.Prm.Resize(parameters);
  data.SwitchNum = static_cast<std::int16_t>(switches);
  data.Switches.Resize(switches);
  int nextSwitch = 0;
  for (int i = 0; i < parameters; ++i) {
    const std::string no = "S-" + std::to_string(i);
    data.Prm[i] = {no, Names[static_cast<std::size_t>(i % 5)], std::to_string(i * 7 % 9973), "100", "min-1"};
    if (nextSwitch * static_cast<long>(parameters) > static_cast<long>(i) * switches ||
        nextSwitch >= switches)
      continue;
    UserSwitch& broken = data.Switches[nextSwitch++];
    broken.No = no;
    for (int k = 0; k < 4; ++k) {
      broken.Digit[static_cast<std::size_t>(k)] = {
          std::to_string(k), "1", "1", "0",
          "Function of the Digit\r\n1:Enabled while the axis moves, number " + no};
    }
  }
}

}  // namespace tarvis
