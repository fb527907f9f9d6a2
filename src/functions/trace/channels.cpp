#include "functions/trace/channels.h"

#include "printfiles/numbers.h"
#include "printfiles/run_time_failure.h"

namespace tarvis {
namespace {

template <typename Record>
std::array<const TraceItem*, 6> ChannelsOf(const Record& record) {
  return {&record.DataTrace1, &record.DataTrace2, &record.DataTrace3,
          &record.IOTrace1,   &record.IOTrace2,   &record.IOTrace3};
}

}  // namespace

bool PrintsSimulation(const PrintRun& run) {
  return run.Session.Mode == "Sim";
}

std::array<const TraceItem*, 6> Channels(const PrintRun& run) {
  return PrintsSimulation(run) ? ChannelsOf(run.Sim) : ChannelsOf(run.Trace);
}

bool IsDisplayed(const TraceItem& channel) {
  try {
    return StrictInteger(channel.Display) != 0;
  } catch (const RunTimeFailure& failure) {
    throw failure.At({.File = {}, .Line = 0, .Key = "Display of channel '" + channel.Name + "'", .Text = {}});
  }
}

}  // namespace tarvis
