#include "printfiles/jog_tbl_file.h"

#include "printfiles/counted_block.h"
#include "printfiles/header_keys.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

void FillSpeed(JogRow& row, LineValue& value) {
  value.FieldsAndRest(row.Id, row.Speed);
}

KeyTable JogTblKeys(JogTblData& table) {
  const CountedBlock speeds("JspdCnt", table.JspdCnt, table.Jspd);
  return {
      {"Speed-Unit", Rest(Escaped{table.SpeedUnit})},
      {"JspdCnt", speeds.Count()},
      {"Jspd", speeds.Whole(FillSpeed)},
  };
}

}  // namespace

bool ReadJogTblFile(PrintRun& run) {
  return ReadLines(run, HeaderKeys(run.Header) + JogTblKeys(run.JogTbl) + CommentKeys(run.User));
}

}  // namespace tarvis
