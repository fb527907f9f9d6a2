// Compiled into the copy of tools/mutate only, where many changes are side by side: the one whose number
// the environment variable TARVIS_MUTANT holds is made, all others are not.
#pragma once

#include <cstdlib>
#include <type_traits>

inline const long long ActiveMutant = [] {
  const char* const number = std::getenv("TARVIS_MUTANT");
  return number == nullptr ? -1 : std::atoll(number);
}();

// In constant expressions no change is made; tools/mutate then tries it by itself.
constexpr bool IsMutated(long long number) {
  return !std::is_constant_evaluated() && ActiveMutant == number;
}

template <typename Old, typename New>
constexpr Old Mutated(long long number, Old old, New changed) {
  return IsMutated(number) ? static_cast<Old>(changed) : old;
}
