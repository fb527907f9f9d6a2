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
      {{"Field1", "STEP", "txtIdNum", 20, 547}, &IdxRow::Step},
      {{"Field2", "POS", "txtPOSVal", 567, 1559}, &IdxRow::Pos},
      {{"Field3", "SPD", "txtSPDVal", 2126, 1276}, &IdxRow::Spd},
      {{"Field4", "RDST", "txtRDSTVal", 3402, 1275}, &IdxRow::Rdst},
      {{"Field5", "RSPD", "txtRSPDVal", 4677, 1276}, &IdxRow::Rspd},
      {{"Field6", "POUT", "txtPOUTVal", 5953, 708}, &IdxRow::Pout},
      {{"Field7", "EVENT", "txtEVENTVal", 6661, 1134}, &IdxRow::Event},
      {{"Field8", "LOOP", "txtLOOPVal", 7795, 567}, &IdxRow::Loop},
      {{"Field9", "NEXT", "txtNEXTVal", 8362, 567}, &IdxRow::Next},
  }};
  static constexpr IdxLayout Layout{2025, 285, 567, 5669, 9, Units, Columns};
};

}  // namespace tarvis
