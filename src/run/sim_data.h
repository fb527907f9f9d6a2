// One dynamics simulation, as Sim.tmp and its numbered companions describe it.
#pragma once

#include <cstdint>
#include <string>

#include "run/mecha_data.h"
#include "run/trace_data.h"
#include "text/checked_array.h"

namespace tarvis {

// One row of the reference table of a regular pattern.
struct PatternRow {
  std::string Name;
  std::string Unit;
  BoundedArray<std::string, 0, 10> Values;
};

// One column of the point table of a free pattern.
struct PointList {
  std::string Name;
  std::string Unit;
  BoundedArray<std::string, 0, 40> Values;
};

struct PatternSetting {
  std::string Name;         // kept, printed by nobody
  std::string PatternKind;  // holds a number: 0 a regular pattern, any other a free one
  std::string PatternName;
  std::int16_t PatternCount = 0;  // how many Values a PatternRow or PointList line gives
};

// One simulation of an overlap run.
struct CmpTimeRow {
  std::string FileName;
  std::string SettingTime;
  std::string ControlMode;
};

// One parameter compared over the target and up to ten overlapping data sets.
struct CmpUserRow {
  std::string No;
  BoundedArray<std::string, 0, 10> Values;
};

// The mechanical model: the third text is a picture's path, where the other settings have a unit.
struct MechaModel {
  std::string Name;
  std::string Value;
  std::string ModelFile;
};

// A read empties the record but for MotorType, CmpTime, CmpUserNum, CmpUser and all Values beyond the first
// of a PatternRow or PointList: these survive from the file before as long as no line overwrites them.
struct SimData : Recording {
  std::string SimGraphC;
  std::string SimGraph;
  std::string SimNoteC;
  std::string SimNote;
  std::string SimIONoteC;
  std::string SimIONote;
  std::int16_t MotorType = 0;  // 1 selects the short motor table
  BoundedArray<CmpTimeRow, 0, 10> CmpTime;
  std::int16_t CmpUserNum = 0;
  CheckedArray<CmpUserRow> CmpUser{"SimData.CmpUser"};  // 0 to CmpUserNum, the last one a spare
  NameValueUnit Control;
  NameValueUnit Ref;
  NameValueUnit SettingTime;
  NameValueUnit SamplingCycle;
  tarvis::PatternSetting PatternSetting;
  PointList StartPointTime;
  PointList EndTime;
  PointList ArrivalSpeed;
  NameValueUnit SimTime;
  PatternRow StartTime;
  PatternRow AccTime;
  PatternRow RunTime;
  PatternRow DecTime;
  PatternRow EndRefTime;
  PatternRow AccOffsetSpd;
  PatternRow DecOffsetSpd;
  PatternRow MaxSpd;
  NameValueUnit FilType;
  NameValueUnit FilTime;
  NameValueUnit MtRatedOutput;  // printed by nobody
  NameValueUnit MtRatedTorque;
  NameValueUnit MtPeakTorque;
  NameValueUnit MtMaxCurrent;
  NameValueUnit MtRatedCurrent;
  NameValueUnit MtRatedSpeed;
  NameValueUnit MtMaxSpeed;
  NameValueUnit MtTorqueConstant;
  NameValueUnit MtRoterMoment;
  NameValueUnit MtRatedPowerRate;
  NameValueUnit MtRatedAnglulerAcc;
  NameValueUnit MtInertiaTimeConstant;
  NameValueUnit MtInductionTimeConstant;
  NameValueUnit MtBrakeCompensation;
  NameValueUnit MtOilSealCompensation;
  NameValueUnit PgType;
  NameValueUnit MtOpType;
  NameValueUnit FcType;
  NameValueUnit ResPoint;
  NameValueUnit AntiResPoint;
  MechaModel MechaType;
  NameValueUnit Inertia;  // value and unit may hold CR LF
};

}  // namespace tarvis
