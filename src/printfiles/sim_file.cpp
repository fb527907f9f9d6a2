#include "printfiles/sim_file.h"

#include <array>
#include <memory>

#include "printfiles/counted_block.h"
#include "printfiles/header_keys.h"
#include "printfiles/record_lines.h"
#include "printfiles/user_block.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

constexpr std::array PatternRows = {&SimData::StartTime,    &SimData::AccTime,    &SimData::RunTime,
                                    &SimData::DecTime,      &SimData::EndRefTime, &SimData::AccOffsetSpd,
                                    &SimData::DecOffsetSpd, &SimData::MaxSpd};
constexpr std::array PointLists = {&SimData::StartPointTime, &SimData::EndTime, &SimData::ArrivalSpeed};

// Values beyond the first survive a read.
template <typename List>
void KeepLaterValues(List& fresh, List& old) {
  old.Values[0].clear();
  fresh.Values = std::move(old.Values);
}

// Empties the record, but for what survives from the file before.
void StartOver(SimData& sim) {
  SimData fresh;
  fresh.MotorType = sim.MotorType;
  fresh.CmpTime = std::move(sim.CmpTime);
  fresh.CmpUserNum = sim.CmpUserNum;
  fresh.CmpUser = std::move(sim.CmpUser);
  for (const auto row : PatternRows) KeepLaterValues(fresh.*row, sim.*row);
  for (const auto list : PointLists) KeepLaterValues(fresh.*list, sim.*list);
  sim = std::move(fresh);
}

// Two fields and as many values as the pattern counts at this moment; a line ahead of `PatternSetting` has
// none.
template <typename List>
LineHandler ValuesLine(List& list, const std::int16_t& patternCount) {
  return [&list, &patternCount](LineValue& value) -> Refusal {
    constexpr int Room = decltype(list.Values)::HighestIndex() + 1;
    if (patternCount > Room) {
      throw RunTimeFailure("'PatternSetting' counts " + std::to_string(patternCount) + " values, and only " +
                           std::to_string(Room) + " have room");
    }
    value.Fields(list.Name, list.Unit);
    for (int index = 0; index < patternCount; ++index) value.Fields(list.Values[index]);
    return Accepted;
  };
}

// It is the session's number of data sets that bounds the rows, not this file's own; surplus lines are passed
// over.
LineHandler CmpTimeLine(SimData& sim, const std::int16_t& overlapNum) {
  return [&sim, &overlapNum, row = std::make_shared<int>(0)](LineValue& value) -> Refusal {
    if (*row >= overlapNum) return Accepted;
    if (*row > sim.CmpTime.HighestIndex()) {
      throw RunTimeFailure("'OverlapNum' counts " + std::to_string(overlapNum) + " simulations, and only " +
                           std::to_string(*row) + " have room");
    }
    CmpTimeRow& data = sim.CmpTime[*row];
    value.Fields(data.FileName, data.SettingTime, data.ControlMode);
    ++*row;
    return Accepted;
  };
}

void FillCmpUser(CmpUserRow& row, LineValue& value) {
  value.Fields(row.No);
  for (std::string& text : row.Values) value.Fields(text);
}

KeyTable GraphKeys(SimData& sim) {
  return {
      {"SimGraphC", Rest(sim.SimGraphC)},   {"SimGraph", Rest(sim.SimGraph)},
      {"SimNoteC", Rest(sim.SimNoteC)},     {"SimNote", Rest(sim.SimNote)},
      {"SimIONoteC", Rest(sim.SimIONoteC)}, {"SimIONote", Rest(sim.SimIONote)},
  };
}

KeyTable ComparisonKeys(SimData& sim, const PrintSession& session) {
  const CountedBlock parameters("CmpUserNum", sim.CmpUserNum, sim.CmpUser);
  return {
      {"CmpTime", CmpTimeLine(sim, session.OverlapNum)},
      {"CmpUserNum", parameters.Count()},
      {"CmpUser", parameters.Whole(FillCmpUser)},
  };
}

KeyTable PatternKeys(SimData& sim) {
  PatternSetting& setting = sim.PatternSetting;
  const std::int16_t& count = setting.PatternCount;
  return {
      {"PatternSetting",
       Fields(setting.Name, setting.PatternKind, setting.PatternName, setting.PatternCount)},
      {"StartPointTime", ValuesLine(sim.StartPointTime, count)},
      {"EndTime", ValuesLine(sim.EndTime, count)},
      {"ArrivalSpeed", ValuesLine(sim.ArrivalSpeed, count)},
      {"StartTime", ValuesLine(sim.StartTime, count)},
      {"AccTime", ValuesLine(sim.AccTime, count)},
      {"RunTime", ValuesLine(sim.RunTime, count)},
      {"DecTime", ValuesLine(sim.DecTime, count)},
      {"EndRefTime", ValuesLine(sim.EndRefTime, count)},
      {"AccOffsetSpd", ValuesLine(sim.AccOffsetSpd, count)},
      {"DecOffsetSpd", ValuesLine(sim.DecOffsetSpd, count)},
      {"MaxSpd", ValuesLine(sim.MaxSpd, count)},
      {"FilType", SettingLine(sim.FilType)},
      {"FilTime", SettingLine(sim.FilTime)},
  };
}

KeyTable ReferenceKeys(SimData& sim) {
  return {
      {"Control", SettingLine(sim.Control)},         {"Ref", SettingLine(sim.Ref)},
      {"SettingTime", SettingLine(sim.SettingTime)}, {"SamplingCycle", SettingLine(sim.SamplingCycle)},
      {"SimTime", SettingLine(sim.SimTime)},
  };
}

KeyTable MotorKeys(SimData& sim) {
  return {
      {"MotorType", Rest(sim.MotorType)},
      {"MtRatedOutput", SettingLine(sim.MtRatedOutput)},
      {"MtRatedTorque", SettingLine(sim.MtRatedTorque)},
      {"MtPeakTorque", SettingLine(sim.MtPeakTorque)},
      {"MtMaxCurrent", SettingLine(sim.MtMaxCurrent)},
      {"MtRatedCurrent", SettingLine(sim.MtRatedCurrent)},
      {"MtRatedSpeed", SettingLine(sim.MtRatedSpeed)},
      {"MtMaxSpeed", SettingLine(sim.MtMaxSpeed)},
      {"MtTorqueConstant", SettingLine(sim.MtTorqueConstant)},
      {"MtRoterMoment", SettingLine(sim.MtRoterMoment)},
      {"MtRatedPowerRate", SettingLine(sim.MtRatedPowerRate)},
      {"MtRatedAnglulerAcc", SettingLine(sim.MtRatedAnglulerAcc)},
      {"MtInertiaTimeConstant", SettingLine(sim.MtInertiaTimeConstant)},
      {"MtInductionTimeConstant", SettingLine(sim.MtInductionTimeConstant)},
      {"MtBrakeCompensation", SettingLine(sim.MtBrakeCompensation)},
      {"MtOilSealCompensation", SettingLine(sim.MtOilSealCompensation)},
      {"PgType", SettingLine(sim.PgType)},
      {"MtOpType", SettingLine(sim.MtOpType)},
      {"FcType", SettingLine(sim.FcType)},
  };
}

// Value and unit of the inertia may run over two lines of the page.
KeyTable MechanicsKeys(SimData& sim) {
  return {
      {"MechaType", Fields(sim.MechaType.Name, sim.MechaType.Value, sim.MechaType.ModelFile)},
      {"Inertia", Fields(sim.Inertia.Name, Escaped{sim.Inertia.Value}, Escaped{sim.Inertia.Unit})},
      {"ResPoint", SettingLine(sim.ResPoint)},
      {"AntiResPoint", SettingLine(sim.AntiResPoint)},
  };
}

}  // namespace

bool ReadSimFile(PrintRun& run) {
  SimData& sim = run.Sim;
  StartOver(sim);
  return ReadLines(run, HeaderKeys(run.Header) + GraphKeys(sim) + RecordingKeys(sim) +
                            ComparisonKeys(sim, run.Session) + PatternKeys(sim) + ReferenceKeys(sim) +
                            MotorKeys(sim) + MechanicsKeys(sim) +
                            KeyTable{{"GetDataDate", Rest(run.Session.DataDate)}} + UserBlockKeys(run.User));
}

}  // namespace tarvis
