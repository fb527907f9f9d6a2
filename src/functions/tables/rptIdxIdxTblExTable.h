// The program table of eleven columns, with ACC and DEC.
#pragma once

#include <array>

#include "functions/tables/idx_tbl_report.h"

namespace tarvis {

class rptIdxIdxTblExTable : public IdxTblReport {
 public:
  explicit rptIdxIdxTblExTable(ReportContext context)
      : IdxTblReport("rptIdxIdxTblExTable", context, Layout) {}

 private:
  static constexpr std::array<IdxUnitLine, 5> Units{{
      {"LblPOS", "POS ", "txtPosUnit", &IdxTblData::Position_Unit, 850, 284},
      {"LblSPD", "SPD", "txtSpdUnit", &IdxTblData::Speed_Unit, 1134, 283},
      {"LblRDST", "RDST", "txtRdstUnit", &IdxTblData::Rdst_Unit, 1417, 284},
      {"LblRSPD", "RSPD", "txtRspdUnit", &IdxTblData::Rspd_Unit, 1701, 283},
      {"LblACCDEC", "ACC/DEC", "txtAccDecUnit", &IdxTblData::AccDec_Unit, 1984, 284},
  }};
  // The value control of ACC is spelled with a small v.
  static constexpr std::array<IdxColumn, 11> Columns{{
      {"Field1", "STEP", "txtIdNum", &IdxRow::Step, 20, 480},
      {"Field2", "POS", "txtPOSVal", &IdxRow::Pos, 500, 1100},
      {"Field3", "SPD", "txtSPDVal", &IdxRow::Spd, 1600, 935},
      {"Field4", "RDST", "txtRDSTVal", &IdxRow::Rdst, 2535, 935},
      {"Field5", "RSPD", "txtRSPDVal", &IdxRow::Rspd, 3470, 935},
      {"Field10", "ACC", "txtACCval", &IdxRow::Acc, 4405, 935},
      {"Field11", "DEC", "txtDECVal", &IdxRow::Dec, 5340, 935},
      {"Field6", "POUT", "txtPOUTVal", &IdxRow::Pout, 6275, 567},
      {"Field7", "EVENT", "txtEVENTVal", &IdxRow::Event, 6842, 992},
      {"Field8", "LOOP", "txtLOOPVal", &IdxRow::Loop, 7834, 567},
      {"Field9", "NEXT", "txtNEXTVal", &IdxRow::Next, 8401, 567},
  }};
  static constexpr IdxLayout Layout{2385, 300, 900, 6002, 8.5F, Units, Columns};
};

}  // namespace tarvis
