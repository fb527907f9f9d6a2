#include "printfiles/zone_tbl_file.h"

#include "printfiles/counted_block.h"
#include "printfiles/header_keys.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

void FillZone(ZoneRow& row, LineValue& value) {
  value.FieldsAndRest(row.Id, row.ZoneN, row.ZoneP);
}

KeyTable ZoneTblKeys(ZoneTblData& table) {
  const CountedBlock zones("ZoneCnt", table.ZoneCnt, table.Zone);
  return {
      {"Pos-Unit", Rest(Escaped{table.PosUnit})},
      {"ZoneCnt", zones.Count()},
      {"Zone", zones.Whole(FillZone)},
  };
}

}  // namespace

bool ReadZoneTblFile(PrintRun& run) {
  return ReadLines(run, HeaderKeys(run.Header) + ZoneTblKeys(run.ZoneTbl) + CommentKeys(run.User));
}

}  // namespace tarvis
