#include "run/mode.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarvis {
namespace {

// In the order of the enum.
constexpr std::array<std::string_view, 12> Texts = {"",          "User",    "UPWizard", "Trace",
                                                    "RealTrace", "Mecha",   "Sim",      "SimEx",
                                                    "IdxTbl",    "ZoneTbl", "JogTbl",   "PrnSetting"};
static_assert(Texts.size() == static_cast<std::size_t>(Mode::PrnSetting) + 1);

}  // namespace

Mode ModeOf(std::string_view text) {
  const auto found = std::ranges::find(Texts, text);
  return found == Texts.end() ? Mode::None : static_cast<Mode>(found - Texts.begin());
}

std::string_view TextOf(Mode mode) {
  return Texts.at(static_cast<std::size_t>(mode));
}

}  // namespace tarvis
