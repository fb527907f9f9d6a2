// The notch filter in effect.
#pragma once

#include "functions/mecha/mecha_table.h"

namespace tarvis {

class rptMechaNotch : public MechaTable {
 public:
  explicit rptMechaNotch(ReportContext context)
      : MechaTable("rptMechaNotch", context, "Notch Filters Info", {TableRow(context.Run.Mecha.Notch)}) {}
};

}  // namespace tarvis
