#include "functions/trace/channels.h"

#include "printfiles/key_place.h"
#include "text/numbers.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

// The keys of the channels in their order, and the element of their lines that holds `Display`.
constexpr std::array<const char*, 6> ChannelKeys{"DataTrace1", "DataTrace2", "DataTrace3",
                                                 "I/Otrace1",  "I/Otrace2",  "I/Otrace3"};
constexpr int DisplayElement = 2;

}  // namespace

bool PrintsSimulation(const PrintRun& run) {
  return run.Session.Mode == Mode::Sim;
}

std::array<const TraceItem*, 6> Channels(const PrintRun& run) {
  return PrintsSimulation(run) ? run.Sim.Channels() : run.Trace.Channels();
}

bool IsDisplayed(const PrintRun& run, std::size_t channel) {
  const std::string& display = Channels(run)[channel]->Display;
  try {
    return StrictInteger(display) != 0;
  } catch (const RunTimeFailure& failure) {
    throw failure.At(PlaceOf(run, ChannelKeys[channel], DisplayElement, display));
  }
}

}  // namespace tarvis
