// The settings of servo drive and motor; a motor of type 1 has a shorter table.
#pragma once

#include "functions/sim/setting_columns.h"

namespace tarvis {

class rptSimSettingSvMt : public NameValueTable {
 public:
  explicit rptSimSettingSvMt(ReportContext context)
      : NameValueTable("rptSimSettingSvMt", context, "Servo Drive Setting", Entry::Grouped, SimSettingColumns,
                       RowsOf(context.Run.Sim)) {}

 private:
  static constexpr int ShortTable = 1;

  // The rated current comes ahead of the maximum current, unlike in the file. A blank row parts the motor's
  // rows from the three types.
  static std::vector<TableRow> RowsOf(const SimData& sim) {
    const TableRow blank;
    std::vector<TableRow> rows = {sim.MtRatedTorque,    sim.MtPeakTorque, sim.MtRatedCurrent,
                                  sim.MtMaxCurrent,     sim.MtRatedSpeed, sim.MtMaxSpeed,
                                  sim.MtTorqueConstant, sim.MtRoterMoment};
    const auto add = [&rows](std::initializer_list<TableRow> more) { rows.insert(rows.end(), more); };
    const bool whole = sim.MotorType != ShortTable;
    if (whole) add({sim.MtRatedPowerRate, sim.MtRatedAnglulerAcc});
    add({sim.MtInertiaTimeConstant, sim.MtInductionTimeConstant});
    if (whole) add({sim.MtBrakeCompensation, sim.MtOilSealCompensation});
    add({blank, sim.PgType, sim.MtOpType, sim.FcType});
    return rows;
  }
};

}  // namespace tarvis
