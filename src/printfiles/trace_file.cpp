#include "printfiles/trace_file.h"

#include "printfiles/header_keys.h"
#include "printfiles/record_lines.h"
#include "printfiles/user_block.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

// Only the first two settings keep commas in their value.
KeyTable TriggerKeys(TraceData& trace) {
  return {
      {"TriggerType", FieldsAndRest(trace.TriggerType.Name, trace.TriggerType.Value)},
      {"TriggerLevel", FieldsAndRest(trace.TriggerLevel.Name, trace.TriggerLevel.Value)},
      {"EdgeType", Fields(trace.EdgeType.Name, trace.EdgeType.Value)},
      {"PreTrigger", Fields(trace.PreTrigger.Name, trace.PreTrigger.Value)},
      {"SamplingCycle", Fields(trace.SamplingCycle.Name, trace.SamplingCycle.Value)},
  };
}

KeyTable TraceKeys(TraceData& trace) {
  return {
      {"TraceGraphC", Rest(trace.TraceGraphC)},   {"TraceGraph", Rest(trace.TraceGraph)},
      {"TraceNoteC", Rest(trace.TraceNoteC)},     {"TraceNote", Rest(trace.TraceNote)},
      {"TraceIONoteC", Rest(trace.TraceIONoteC)}, {"TraceIONote", Rest(trace.TraceIONote)},
  };
}

}  // namespace

bool ReadTraceFile(PrintRun& run) {
  run.Trace = {};
  return ReadLines(run, HeaderKeysOfNewFiles(run.Header) + TraceKeys(run.Trace) + RecordingKeys(run.Trace) +
                            TriggerKeys(run.Trace) + KeyTable{{"GetDataDate", Rest(run.Session.DataDate)}} +
                            UserBlockKeys(run.User));
}

}  // namespace tarvis
