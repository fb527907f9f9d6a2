// The comparison of parameters with room for seven simulations.
#pragma once

#include <array>

#include "functions/sim/sim_cmp_user_report.h"

namespace tarvis {

class rptSimCmpUser : public SimCmpUserReport {
 public:
  explicit rptSimCmpUser(ReportContext context) : SimCmpUserReport("rptSimCmpUser", context, Columns) {}

 private:
  static constexpr std::array<NamedColumn, 7> Columns{{
      {"txtTitleFile1", "Target", "txtValueVal1", 850, 1134},
      {"txtTitleFile2", "1", "txtValueVal2", 1984, 1134},
      {"txtTitleFile3", "2", "txtValueVal3", 3118, 1134},
      {"txtTitleFile4", "3", "txtValueVal4", 4252, 1134},
      {"txtTitleFile5", "4", "txtValueVal5", 5386, 1134},
      {"txtTitleFile6", "5", "txtValueVal6", 6520, 1134},
      {"txtTitleFile7", "6", "txtValueVal7", 7654, 1133},
  }};
};

}  // namespace tarvis
