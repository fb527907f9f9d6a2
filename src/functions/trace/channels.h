// The six channels of a trace or of a simulation, whichever function prints.
#pragma once

#include <array>
#include <cstddef>

#include "run/print_run.h"

namespace tarvis {

// Whether the function that prints is Dynamics Simulation; any other counts as Tracing.
bool PrintsSimulation(const PrintRun& run);

// Data traces 1 to 3, then I/O traces 1 to 3, of the record of the function that prints.
std::array<const TraceItem*, 6> Channels(const PrintRun& run);

// Whether the graph of the channel with this index is displayed. A `Display` that is no 16-bit number throws
// RunTimeFailure.
bool IsDisplayed(const PrintRun& run, std::size_t channel);

}  // namespace tarvis
