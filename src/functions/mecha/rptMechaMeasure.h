// The conditions under which the analysis was measured.
#pragma once

#include "functions/mecha/mecha_table.h"

namespace tarvis {

class rptMechaMeasure : public MechaTable {
 public:
  explicit rptMechaMeasure(ReportContext context)
      : MechaTable("rptMechaMeasure", context, "Measurement Conditions", RowsOf(context.Run.Mecha)) {}

 private:
  static std::vector<TableRow> RowsOf(const MechaData& mecha) {
    return {mecha.RunMode,      mecha.AddVibSignal,  mecha.CycleCount, mecha.AddVibRange,
            mecha.MeasureCount, mecha.SamplingCycle, mecha.AddVibTime};
  }
};

}  // namespace tarvis
