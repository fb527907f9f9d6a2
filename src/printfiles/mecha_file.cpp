#include "printfiles/mecha_file.h"

#include "printfiles/header_keys.h"
#include "printfiles/record_lines.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

// The cursor rows count whatever `CursolSelect` says.
KeyTable GraphKeys(MechaData& mecha) {
  return {
      {"MechaGraph1C", Rest(mecha.MechaGraph1C)},     {"MechaGraph1", Rest(mecha.MechaGraph1)},
      {"MechaGraph2C", Rest(mecha.MechaGraph2C)},     {"MechaGraph2", Rest(mecha.MechaGraph2)},
      {"MechaNoteC", Rest(mecha.MechaNoteC)},         {"MechaNote", Rest(mecha.MechaNote)},
      {"CursolSelect", Rest(mecha.CursolSelect)},     {"CursolName", Fields(mecha.CursolName)},
      {"CursolInfo1", CursorLine(mecha.CursolInfo1)}, {"CursolInfo2", CursorLine(mecha.CursolInfo2)},
      {"CursolInfo3", CursorLine(mecha.CursolInfo3)},
  };
}

KeyTable ResultKeys(MechaData& mecha) {
  return {
      {"Resonance", SettingLine(mecha.Resonance)},
      {"Resonance1", SettingLine(mecha.Resonance1)},
      {"Resonance2", SettingLine(mecha.Resonance2)},
      {"AntiResonance", SettingLine(mecha.AntiResonance)},
      {"Notch", SettingLine(mecha.Notch)},
      {"RunMode", SettingLine(mecha.RunMode)},
      {"AddVibSignal", SettingLine(mecha.AddVibSignal)},
      {"CycleCount", SettingLine(mecha.CycleCount)},
      {"AddVibRange", SettingLine(mecha.AddVibRange)},
      {"MeasureCount", SettingLine(mecha.MeasureCount)},
      {"SamplingCycle", SettingLine(mecha.SamplingCycle)},
      {"AddVibTime", SettingLine(mecha.AddVibTime)},
  };
}

}  // namespace

bool ReadMechaFile(PrintRun& run) {
  return ReadLines(run, HeaderKeys(run.Header) + GraphKeys(run.Mecha) + ResultKeys(run.Mecha) +
                            KeyTable{{"GetDataDate", Rest(run.Session.DataDate)}} + CommentKeys(run.User));
}

}  // namespace tarvis
