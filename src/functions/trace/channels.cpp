#include "functions/trace/channels.h"

#include "text/numbers.h"
#include "text/run_time_failure.h"

namespace tarvis {

bool PrintsSimulation(const PrintRun& run) {
  return run.Session.Mode == "Sim";
}

std::array<const TraceItem*, 6> Channels(const PrintRun& run) {
  return PrintsSimulation(run) ? run.Sim.Channels() : run.Trace.Channels();
}

bool IsDisplayed(const TraceItem& channel) {
  try {
    return StrictInteger(channel.Display) != 0;
  } catch (const RunTimeFailure& failure) {
    throw failure.At({.File = {}, .Line = 0, .Key = "Display of channel '" + channel.Name + "'", .Text = {}});
  }
}

}  // namespace tarvis
