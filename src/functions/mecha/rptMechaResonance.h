// Resonance and anti-resonance frequencies.
#pragma once

#include "functions/mecha/mecha_table.h"

namespace tarvis {

class rptMechaResonance : public MechaTable {
 public:
  // Required: the caption ends in a blank, also in the contents.
  explicit rptMechaResonance(ReportContext context)
      : MechaTable("rptMechaResonance", context, "Resonance/Anti-Resonance ", RowsOf(context.Run.Mecha)) {}

 private:
  static std::vector<TableRow> RowsOf(const MechaData& mecha) {
    return {mecha.Resonance, mecha.Resonance1, mecha.Resonance2, mecha.AntiResonance};
  }
};

}  // namespace tarvis
