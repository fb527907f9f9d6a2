// One trace measurement, as Trace.tmp and its numbered companions describe it.
#pragma once

#include <cstdint>
#include <string>

namespace tarvis {

// One row of a cursor table. The name stands last on the line, though it prints first.
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

// Emptied by each read. All texts are finished by the host; pictures are full paths.
struct TraceData {
  std::string TraceGraphC;
  std::string TraceGraph;
  std::string TraceNoteC;
  std::string TraceNote;
  std::string TraceIONoteC;
  std::string TraceIONote;
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
  NameValue TriggerType;
  NameValue TriggerLevel;
  NameValue EdgeType;
  NameValue PreTrigger;
  NameValue SamplingCycle;
};

}  // namespace tarvis
