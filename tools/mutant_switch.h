// Compiled into the copy of tools/mutate only, where many changes are side by side: the one whose number
// the environment variable TARVIS_MUTANT holds is made, all others are not. With TARVIS_REACHED, the numbers
// of all changes that the process comes by are written into the file of that name when it ends.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <type_traits>
#include <unordered_set>
#include <utility>

inline const long long ActiveMutant = [] {
  const char* const number = std::getenv("TARVIS_MUTANT");
  return number == nullptr ? -1 : std::atoll(number);
}();

inline const char* const ReachedFile = std::getenv("TARVIS_REACHED");

inline void NoteReached(long long number) {
  static auto& reached = *[] {
    static auto* numbers = new std::unordered_set<long long>;
    std::atexit([] {
      std::FILE* const file = std::fopen(ReachedFile, "w");
      if (file == nullptr) return;
      for (const long long each : *numbers) std::fprintf(file, "%lld\n", each);
      std::fclose(file);
    });
    return numbers;
  }();
  reached.insert(number);
}

// In constant expressions no change is made; tools/mutate then tries it by itself.
constexpr bool IsMutated(long long number) {
  if (std::is_constant_evaluated()) return false;
  if (ReachedFile != nullptr) NoteReached(number);
  return ActiveMutant == number;
}

template <typename Old, typename New>
constexpr Old Mutated(long long number, Old old, New changed) {
  return IsMutated(number) ? static_cast<Old>(changed) : old;
}

// `a < b` becomes `a < Switch{number} < b`: the first operator keeps `a`, the second one compares as the
// number decides. Both have the precedence of the operator that they replace, so nothing around them need be
// known.
struct Switch {
  long long number;
};

#define TARVIS_SWITCHED(Half, present, changed)                                        \
  template <typename Left>                                                             \
  struct Half {                                                                        \
    Left&& left;                                                                       \
    long long number;                                                                  \
  };                                                                                   \
  template <typename Left>                                                             \
  constexpr Half<Left> operator present(Left&& left, Switch chosen) {                  \
    return {std::forward<Left>(left), chosen.number};                                  \
  }                                                                                    \
  template <typename Left, typename Right>                                             \
  constexpr decltype(auto) operator present(Half<Left> half, Right&& right) {          \
    using Result = decltype(half.left present right);                                  \
    if constexpr (requires { static_cast<Result>(half.left changed right); }) {        \
      if (IsMutated(half.number)) return static_cast<Result>(half.left changed right); \
    }                                                                                  \
    return static_cast<Result>(half.left present right);                               \
  }

TARVIS_SWITCHED(HalfLess, <, <=)
TARVIS_SWITCHED(HalfLessEqual, <=, <)
TARVIS_SWITCHED(HalfGreater, >, >=)
TARVIS_SWITCHED(HalfGreaterEqual, >=, >)
TARVIS_SWITCHED(HalfEqual, ==, !=)
TARVIS_SWITCHED(HalfUnequal, !=, ==)
TARVIS_SWITCHED(HalfSum, +, -)
TARVIS_SWITCHED(HalfDifference, -, +)
TARVIS_SWITCHED(HalfProduct, *, /)

// Assignments are evaluated from the right: `a += Switch{number} += b` keeps `b` first.
#define TARVIS_SWITCHED_ASSIGNMENT(Half, present, changed)               \
  template <typename Right>                                              \
  struct Half {                                                          \
    Right&& right;                                                       \
    long long number;                                                    \
  };                                                                     \
  template <typename Right>                                              \
  constexpr Half<Right> operator present(Switch chosen, Right&& right) { \
    return {std::forward<Right>(right), chosen.number};                  \
  }                                                                      \
  template <typename Left, typename Right>                               \
  constexpr Left& operator present(Left& left, Half<Right> half) {       \
    if constexpr (requires { left changed half.right; }) {               \
      if (IsMutated(half.number)) {                                      \
        left changed half.right;                                         \
        return left;                                                     \
      }                                                                  \
    }                                                                    \
    left present half.right;                                             \
    return left;                                                         \
  }

TARVIS_SWITCHED_ASSIGNMENT(HalfIncrease, +=, -=)
TARVIS_SWITCHED_ASSIGNMENT(HalfDecrease, -=, +=)

// `!a` becomes `NotSwitch{number} ->* a`: no operator but those of one operand binds closer.
struct NotSwitch {
  long long number;
};
struct MinusSwitch {
  long long number;
};
struct StepSwitch {
  long long number;
};

template <typename Operand>
constexpr bool operator->*(NotSwitch chosen, Operand&& operand) {
  return IsMutated(chosen.number) == static_cast<bool>(operand);
}

template <typename Operand>
constexpr auto operator->*(MinusSwitch chosen, Operand&& operand) {
  return IsMutated(chosen.number) ? +operand : -operand;
}

template <typename Operand>
constexpr Operand& operator->*(StepSwitch chosen, Operand& operand) {
  if constexpr (requires { --operand; }) {
    if (IsMutated(chosen.number)) {
      --operand;
      return operand;
    }
  }
  ++operand;
  return operand;
}

// `a ? b : c` becomes `a ^ Flip{number} ? b : c`; no operator that a condition is made of binds less close
// but && and ||.
struct Flip {
  long long number;
};

template <typename Condition>
constexpr bool operator^(Condition&& condition, Flip flip) {
  return IsMutated(flip.number) != static_cast<bool>(condition);
}
