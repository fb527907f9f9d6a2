// The zone table.
#pragma once

#include <array>

#include "functions/tables/bit_table_report.h"

namespace tarvis {

class rptIdxZoneTblTable : public BitTableReport {
 public:
  explicit rptIdxZoneTblTable(ReportContext context)
      : BitTableReport("rptIdxZoneTblTable", context, Layout) {}

  void ActiveReport_ReportStart() override {
    BitTableReport::ActiveReport_ReportStart();
    txtUnit.Text = Run.ZoneTbl.PosUnit;
  }

 private:
  std::int16_t RowCount() const override { return Run.ZoneTbl.ZoneCnt; }
  void ShowRow(int index) override {
    const ZoneRow& row = Run.ZoneTbl.Zone[index];
    ShowId(row.Id);
    ShowText(0, row.ZoneN);
    ShowText(1, row.ZoneP);
  }

  static constexpr std::array<NamedColumn, 5> Bits{{
      {"txtZ4", "Z4", "txtZ4Val", 1140, 570},
      {"txtZ3", "Z3", "txtZ3Val", 1710, 570},
      {"txtZ2", "Z2", "txtZ2Val", 2280, 570},
      {"txtZ1", "Z1", "txtZ1Val", 2850, 570},
      {"txtZ0", "Z0", "txtZ0Val", 3420, 570},
  }};
  static constexpr std::array<NamedColumn, 2> Texts{{
      {"txtZONEN", "ZONEN", "txtZONENVal", 3990, 2415},
      {"txtZONEP", "ZONEP", "txtZONEPVal", 6405, 2415},
  }};
  static constexpr BitTableLayout Layout{
      "Zone Table", 5244, 5811, 2693, {"txtID", "ID", "txtIdNum", 570, 570}, Bits, Texts};
};

}  // namespace tarvis
