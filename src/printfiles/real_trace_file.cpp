#include "printfiles/real_trace_file.h"

#include "printfiles/header_keys.h"
#include "printfiles/record_lines.h"
#include "printfiles/user_block.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

// Other than in the trace file, the sampling cycle keeps its commas.
KeyTable RealTraceKeys(RealTraceData& trace) {
  return {
      {"RealTraceGraphC", Rest(trace.RealTraceGraphC)},
      {"RealTraceGraph", Rest(trace.RealTraceGraph)},
      {"RealTraceNoteC", Rest(trace.RealTraceNoteC)},
      {"RealTraceNote", Rest(trace.RealTraceNote)},
      {"StartTime", FieldsAndRest(trace.StartTime.Name, trace.StartTime.Value)},
      {"SamplingCycle", FieldsAndRest(trace.SamplingCycle.Name, trace.SamplingCycle.Value)},
      {"DispData", Fields(trace.DispData.Name, trace.DispData.Value)},
  };
}

}  // namespace

bool ReadRealTraceFile(PrintRun& run) {
  return ReadLines(run, HeaderKeysOfNewFiles(run.Header) + RealTraceKeys(run.RealTrace) +
                            CursorKeys(run.RealTrace) + UserBlockKeys(run.User));
}

}  // namespace tarvis
