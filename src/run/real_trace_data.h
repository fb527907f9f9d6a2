// One real-time trace, as RealTrace.tmp describes it.
#pragma once

#include <cstdint>
#include <string>

#include "run/trace_data.h"

namespace tarvis {

// Not emptied by a read: a key that the file doesn't have keeps its older value.
struct RealTraceData {
  std::string RealTraceGraphC;
  std::string RealTraceGraph;
  std::string RealTraceNoteC;
  std::string RealTraceNote;
  std::int16_t CursolSelect = 0;  // how many cursor rows print
  CursorRow CursolInfo1;
  CursorRow CursolInfo2;
  NameValue StartTime;
  NameValue SamplingCycle;
  NameValue DispData;
};

}  // namespace tarvis
