// The comparison of parameters with room for eleven simulations; its rows close evenly.
#pragma once

#include <algorithm>
#include <array>

#include "functions/sim/sim_cmp_user_report.h"

namespace tarvis {

class rptSimCmpUserEx : public SimCmpUserReport {
 public:
  explicit rptSimCmpUserEx(ReportContext context) : SimCmpUserReport("rptSimCmpUserEx", context, Columns) {
    Detail.BeforePrint = [this] { Detail_BeforePrint(); };
  }

 private:
  // The first eight columns are always looked at, the others only if they are in use.
  static constexpr int AlwaysMeasured = 8;

  void Detail_BeforePrint() {
    float height = 0;
    for (std::size_t column = 0; column < txtValueVal.size(); ++column) {
      const int number = static_cast<int>(column) + 1;
      if (number > AlwaysMeasured && Run.Session.OverlapNum < number) continue;
      height = std::max(height, txtValueVal[column]->Height);
    }
    for (Field* value : txtValueVal) value->Height = height;
    txtValueNo.Height = height;
  }

  static constexpr std::array<NamedColumn, 11> Columns{{
      {"txtTitleFile1", "Target", "txtValueVal1", 850, 709},
      {"txtTitleFile2", "1", "txtValueVal2", 1559, 709},
      {"txtTitleFile3", "2", "txtValueVal3", 2268, 708},
      {"txtTitleFile4", "3", "txtValueVal4", 2976, 709},
      {"txtTitleFile5", "4", "txtValueVal5", 3685, 709},
      {"txtTitleFile6", "5", "txtValueVal6", 4394, 708},
      {"txtTitleFile7", "6", "txtValueVal7", 5102, 709},
      {"txtTitleFile8", "7", "txtValueVal8", 5811, 709},
      {"txtTitleFile9", "8", "txtValueVal9", 6520, 708},
      {"txtTitleFile10", "9", "txtValueVal10", 7228, 709},
      {"txtTitleFile11", "10", "txtValueVal11", 7937, 709},
  }};
};

}  // namespace tarvis
