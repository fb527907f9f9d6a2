// The jog speed table.
#pragma once

#include <array>

#include "functions/tables/bit_table_report.h"

namespace tarvis {

class rptIdxJogTblTable : public BitTableReport {
 public:
  explicit rptIdxJogTblTable(ReportContext context) : BitTableReport("rptIdxJogTblTable", context, Layout) {}

  void ActiveReport_ReportStart() override {
    BitTableReport::ActiveReport_ReportStart();
    txtUnit.Text = Run.JogTbl.SpeedUnit;
  }

 private:
  std::int16_t RowCount() const override { return Run.JogTbl.JspdCnt; }
  void ShowRow(int index) override {
    const JogRow& row = Run.JogTbl.Jspd[index];
    ShowId(row.Id);
    ShowText(0, row.Speed);
  }

  // Bit 4 of an ID has no column here.
  static constexpr std::array<NamedColumn, 4> Bits{{
      {"txtJ3", "J3", "txtJ3Val", 1140, 570},
      {"txtJ2", "J2", "txtJ2Val", 1710, 570},
      {"txtJ1", "J1", "txtJ1Val", 2280, 570},
      {"txtJ0", "J0", "txtJ0Val", 2850, 570},
  }};
  static constexpr std::array<NamedColumn, 1> Texts{{
      {"txtJSPD", "JSPD", "txtJSPDVal", 3420, 3968},
  }};
  static constexpr BitTableLayout Layout{
      "Jog Speed Table", 3402, 3969, 2692, {"txtID", "ID", "txtIdNum", 570, 570}, Bits, Texts};
};

}  // namespace tarvis
