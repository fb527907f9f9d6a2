#include "printfiles/idx_tbl_file.h"

#include "printfiles/counted_block.h"
#include "printfiles/header_keys.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

LineHandler UnitLine(UnitRow& row) {
  return FieldsAndRest(row.Caption, Escaped{row.Unit});
}

void FillStep(IdxRow& row, LineValue& value) {
  value.FieldsAndRest(row.Step, row.Pos, row.Spd, row.Rdst, row.Rspd, row.Acc, row.Dec, row.Pout, row.Event,
                      row.Loop, row.Next, row.Defined);
}

KeyTable IdxTblKeys(IdxTblData& table) {
  const CountedBlock steps("IndexCnt", table.IndexCnt, table.Index);
  return {
      {"Position_Unit", UnitLine(table.Position_Unit)},
      {"Speed_Unit", UnitLine(table.Speed_Unit)},
      {"Rdst_Unit", UnitLine(table.Rdst_Unit)},
      {"Rspd_Unit", UnitLine(table.Rspd_Unit)},
      {"AccDec_Unit", UnitLine(table.AccDec_Unit)},
      {"TblType", Rest(table.TblType)},
      {"IndexCnt", steps.Count()},
      {"Index", steps.Whole(FillStep)},
  };
}

}  // namespace

bool ReadIdxTblFile(PrintRun& run) {
  return ReadLines(run, HeaderKeys(run.Header) + IdxTblKeys(run.IdxTbl) + CommentKeys(run.User));
}

}  // namespace tarvis
