// The choice that a number of the print options makes among controls.
#pragma once

#include <array>
#include <cstdint>

#include "session/choices.h"

namespace tarvis {

// The member of `family` that `option`, a number of the run's options, chooses; `first` is the number of the
// first member. A number without a member throws RunTimeFailure.
template <typename Control, std::size_t Count>
[[nodiscard]] Control& Chosen(PrintRun& run, const std::array<Control*, Count>& family,
                              const std::int16_t& option, int first) {
  RequireChoice(run, option, first, first + static_cast<int>(Count) - 1);
  return *family[static_cast<std::size_t>(option - first)];
}

}  // namespace tarvis
