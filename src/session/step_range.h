// The steps of the program table that are printed: all, those with a program, or a typed range.
#pragma once

#include <cstdint>
#include <string>

namespace tarvis {

struct PrintRun;
struct PrintSession;

// Element 1 of the options where the range is typed.
inline constexpr std::int16_t TypedRange = 2;

// Repairs a kept range that can't be. An element 1 that is no choice throws RunTimeFailure.
void LoadStepRange(PrintRun& run);

// Takes a choice for element 1: the typed range gets its first and last step, the other two choices have
// none.
void ChooseStepRange(PrintRun& run, std::int16_t choice);

// Sets the validity flags of the session from two typed texts and stores those that pass. A flag that is not
// reached keeps its value, and a start that passed is stored even if the end then fails.
void CheckStepRange(PrintRun& run, const std::string& start, const std::string& end);

// Whether both steps passed the check that ran last.
bool StepRangeIsValid(const PrintSession& session);

}  // namespace tarvis
