// What a run prints, as the host names it in its first argument.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarvis {

enum class Mode : std::uint8_t {
  None,  // not known yet, or a text that names no mode
  User,
  UPWizard,
  Trace,
  RealTrace,
  Mecha,
  Sim,
  SimEx,  // a comparison of simulations; the dialog turns it into Sim
  IdxTbl,
  ZoneTbl,
  JogTbl,
  PrnSetting,  // only edits the print options
};

// `Mode::None` for a text that names no mode. Upper and lower case count.
[[nodiscard]] Mode ModeOf(std::string_view text);

// Empty for `Mode::None`. The text lasts as long as the process.
[[nodiscard]] std::string_view TextOf(Mode mode);

}  // namespace tarvis
