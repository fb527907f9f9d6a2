// One mechanical frequency analysis, as Mecha.tmp describes it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "run/trace_data.h"

namespace tarvis {

// A caption supplied by the host, with its value and unit.
struct NameValueUnit {
  std::string Name;
  std::string Value;
  std::string Unit;
};

// Not emptied by a read: a key that the file doesn't have keeps its older value.
struct MechaData {
  std::string MechaGraph1C;  // gain
  std::string MechaGraph1;
  std::string MechaGraph2C;  // phase
  std::string MechaGraph2;
  std::string MechaNoteC;  // kept, printed by nobody
  std::string MechaNote;
  std::int16_t CursolSelect = 0;          // 0 no cursor table, 2 no cursor B column, else all columns
  std::array<std::string, 3> CursolName;  // captions of cursor A, cursor B and their difference
  CursorRow CursolInfo1;
  CursorRow CursolInfo2;
  CursorRow CursolInfo3;
  NameValueUnit Resonance;
  NameValueUnit Resonance1;
  NameValueUnit Resonance2;
  NameValueUnit AntiResonance;
  NameValueUnit Notch;
  NameValueUnit RunMode;
  NameValueUnit AddVibSignal;
  NameValueUnit CycleCount;
  NameValueUnit AddVibRange;
  NameValueUnit MeasureCount;
  NameValueUnit SamplingCycle;
  NameValueUnit AddVibTime;
};

}  // namespace tarvis
