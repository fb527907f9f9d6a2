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
      {{"Field1", "STEP", "txtIdNum", 20, 480}, &IdxRow::Step},
      {{"Field2", "POS", "txtPOSVal", 500, 1100}, &IdxRow::Pos},
      {{"Field3", "SPD", "txtSPDVal", 1600, 935}, &IdxRow::Spd},
      {{"Field4", "RDST", "txtRDSTVal", 2535, 935}, &IdxRow::Rdst},
      {{"Field5", "RSPD", "txtRSPDVal", 3470, 935}, &IdxRow::Rspd},
      {{"Field10", "ACC", "txtACCval", 4405, 935}, &IdxRow::Acc},
      {{"Field11", "DEC", "txtDECVal", 5340, 935}, &IdxRow::Dec},
      {{"Field6", "POUT", "txtPOUTVal", 6275, 567}, &IdxRow::Pout},
      {{"Field7", "EVENT", "txtEVENTVal", 6842, 992}, &IdxRow::Event},
      {{"Field8", "LOOP", "txtLOOPVal", 7834, 567}, &IdxRow::Loop},
      {{"Field9", "NEXT", "txtNEXTVal", 8401, 567}, &IdxRow::Next},
  }};
  static constexpr IdxLayout Layout{2385, 300, 900, 6002, 8.5F, Units, Columns};
};

}  // namespace tarvis
