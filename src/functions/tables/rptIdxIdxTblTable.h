// The program table of nine columns.
#pragma once

#include <array>

#include "functions/tables/idx_tbl_report.h"

namespace tarvis {

class rptIdxIdxTblTable : public IdxTblReport {
 public:
  explicit rptIdxIdxTblTable(ReportContext context) : IdxTblReport("rptIdxIdxTblTable", context, Layout) {}

 private:
  static constexpr std::array<IdxUnitLine, 4> Units{{
      {"LblPOS", "POS ", "txtPosUnit", &IdxTblData::Position_Unit, 850, 284},
      {"LblSPD", "SPD", "txtSpdUnit", &IdxTblData::Speed_Unit, 1134, 283},
      {"LblRDST", "RDST", "txtRdstUnit", &IdxTblData::Rdst_Unit, 1417, 284},
      {"LblRSPD", "RSPD", "txtRspdUnit", &IdxTblData::Rspd_Unit, 1701, 283},
  }};
  static constexpr std::array<IdxColumn, 9> Columns{{
      {"Field1", "STEP", "txtIdNum", &IdxRow::Step, 20, 547},
      {"Field2", "POS", "txtPOSVal", &IdxRow::Pos, 567, 1559},
      {"Field3", "SPD", "txtSPDVal", &IdxRow::Spd, 2126, 1276},
      {"Field4", "RDST", "txtRDSTVal", &IdxRow::Rdst, 3402, 1275},
      {"Field5", "RSPD", "txtRSPDVal", &IdxRow::Rspd, 4677, 1276},
      {"Field6", "POUT", "txtPOUTVal", &IdxRow::Pout, 5953, 708},
      {"Field7", "EVENT", "txtEVENTVal", &IdxRow::Event, 6661, 1134},
      {"Field8", "LOOP", "txtLOOPVal", &IdxRow::Loop, 7795, 567},
      {"Field9", "NEXT", "txtNEXTVal", &IdxRow::Next, 8362, 567},
  }};
  static constexpr IdxLayout Layout{2025, 285, 567, 5669, 9, Units, Columns};
};

}  // namespace tarvis
