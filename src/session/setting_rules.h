// What "Printing Item Setting" does to options and session when it opens, at its clicks and when it is
// confirmed, apart from its controls.
#pragma once

#include <span>

#include "session/function_list.h"

namespace tarvis {

struct PrintOptions;
struct PrintRun;
struct PrintSession;

// The functions that the host's edition and version offer. A version that edition 1 or 4 doesn't know is
// failure 1.
std::span<const FunctionEntry> OfferedFunctions(PrintRun& run);

// What the run's mode opens; `SimEx` becomes `Sim`. A mode that the edition doesn't know is failure 1. One
// whose function isn't among `functions`, as in an older version, throws RunTimeFailure.
const ModeChoice& OpenMode(PrintRun& run, std::span<const FunctionEntry> functions);

// Sets `StepLimit` where the mode needs it: from the program table, whose file is failure 15 if it can't be
// read, or to 1000 where the settings are changed without a table.
void LoadStepLimit(PrintRun& run);

// The item page of a function.
PageId PageOf(const PrintSession& session, const FunctionEntry& entry);

// Attaches the cover letter or leaves it out. True if the first addressee was selected because none was.
bool SwitchCover(PrintOptions& options, bool on);

// Dates the options, as their confirmation does.
void StampOptions(PrintRun& run);

}  // namespace tarvis
