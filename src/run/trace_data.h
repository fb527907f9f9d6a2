// One trace measurement, as Trace.tmp and its numbered companions describe it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarvis {

// One row of a cursor table. The name is the last field of the line, though it prints first.
struct CursorRow {
  std::string ValueA;
  std::string ValueB;
  std::string ValueDiff;  // B - A
  std::string NameUnit;   // may hold commas
};

// One traced signal.
struct TraceItem {
  std::string Name;     // empty: the channel is not used
  std::string Display;  // whole number as text; "0": the graph is not displayed
  std::string Unit;
};

// A caption supplied by the host, with its value.
struct NameValue {
  std::string Name;
  std::string Value;
};

// The curves of a trace or a simulation: what its cursors read, and its six channels.
struct Recording {
  std::int16_t CursolSelect = 0;  // how many cursor rows print; 0 hides the cursor table
  CursorRow CursolInfo1;
  CursorRow CursolInfo2;
  std::int16_t OverlapMode = 0;  // the session's field of this name decides, not this one
  std::int16_t OverlapNum = 0;
  TraceItem DataTrace1;
  TraceItem DataTrace2;
  TraceItem DataTrace3;
  TraceItem IOTrace1;
  TraceItem IOTrace2;
  TraceItem IOTrace3;

  // Data traces 1 to 3, then I/O traces 1 to 3; they belong to this record.
  std::array<const TraceItem*, 6> Channels() const {
    return {&DataTrace1, &DataTrace2, &DataTrace3, &IOTrace1, &IOTrace2, &IOTrace3};
  }
};

// Emptied by each read. All texts are finished by the host; pictures are full paths.
struct TraceData : Recording {
  std::string TraceGraphC;
  std::string TraceGraph;
  std::string TraceNoteC;
  std::string TraceNote;
  std::string TraceIONoteC;
  std::string TraceIONote;
  NameValue TriggerType;
  NameValue TriggerLevel;
  NameValue EdgeType;
  NameValue PreTrigger;
  NameValue SamplingCycle;
};

}  // namespace tarvis
