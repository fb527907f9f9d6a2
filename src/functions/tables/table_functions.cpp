#include "functions/tables/table_functions.h"

#include <array>

#include "functions/contents.h"
#include "functions/module_list.h"
#include "functions/tables/rptIdxIdxTblExTable.h"
#include "functions/tables/rptIdxIdxTblTable.h"
#include "functions/tables/rptIdxJogTblTable.h"
#include "functions/tables/rptIdxZoneTblTable.h"
#include "printfiles/idx_tbl_file.h"
#include "printfiles/jog_tbl_file.h"
#include "printfiles/zone_tbl_file.h"

namespace tarvis {
namespace {

constexpr std::array IdxTblReports = {
    NamedReport{"rptIdxIdxTblTable", MakeReport<rptIdxIdxTblTable>},
    NamedReport{"rptIdxIdxTblExTable", MakeReport<rptIdxIdxTblExTable>},
};
constexpr std::array ZoneTblReports = {NamedReport{"rptIdxZoneTblTable", MakeReport<rptIdxZoneTblTable>}};
constexpr std::array JogTblReports = {NamedReport{"rptIdxJogTblTable", MakeReport<rptIdxJogTblTable>}};

// A table type other than 0 or 1 leaves index 0 empty, and a comment goes to index 1.
ModuleList IdxTblModules(PrintRun& run) {
  const int type = run.IdxTbl.TblType;
  ModuleList modules{type == 0 ? "rptIdxIdxTblTable" : type == 1 ? "rptIdxIdxTblExTable" : ""};
  AddIf(modules, run.Options.IdxTblOption.Comment == 1, "rptUserComment");
  return modules;
}

ModuleList ZoneTblModules(PrintRun& run) {
  ModuleList modules{"rptIdxZoneTblTable"};
  AddIf(modules, run.Options.ZoneTblOption == 1, "rptUserComment");
  return modules;
}

ModuleList JogTblModules(PrintRun& run) {
  ModuleList modules{"rptIdxJogTblTable"};
  AddIf(modules, run.Options.JogTblOption == 1, "rptUserComment");
  return modules;
}

std::string IdxTblContents(const PrintRun& run) {
  const IdxTblData& table = run.IdxTbl;
  int defined = 0;
  for (int step = 0; step < table.IndexCnt; ++step) defined += table.Index[step].Defined == 1 ? 1 : 0;
  return Counted(table.IndexCnt, "step", "steps") + ", " + std::to_string(defined) + " with a program, " +
         (table.TblType == 1 ? "with" : "without") + " ACC and DEC, " + CommentContents(run);
}

std::string ZoneTblContents(const PrintRun& run) {
  return Counted(run.ZoneTbl.ZoneCnt, "zone", "zones") + ", " + CommentContents(run);
}

std::string JogTblContents(const PrintRun& run) {
  return Counted(run.JogTbl.JspdCnt, "jog speed", "jog speeds") + ", " + CommentContents(run);
}

}  // namespace

constinit const PrintFunction IdxTblFunction = {.Mode = Mode::IdxTbl,
                                                .Header = &PrintOptions::IdxTblHeader,
                                                .File = "IdxIdxTbl",
                                                .Read = ReadIdxTblFile,
                                                .WrongFile = Failure::WrongProgramTableFile,
                                                .Modules = IdxTblModules,
                                                .Reports = IdxTblReports,
                                                .Contents = IdxTblContents};

constinit const PrintFunction ZoneTblFunction = {.Mode = Mode::ZoneTbl,
                                                 .Header = &PrintOptions::ZoneTblHeader,
                                                 .File = "IdxZoneTbl",
                                                 .Read = ReadZoneTblFile,
                                                 .WrongFile = Failure::WrongZoneTableFile,
                                                 .Modules = ZoneTblModules,
                                                 .Reports = ZoneTblReports,
                                                 .Contents = ZoneTblContents};

constinit const PrintFunction JogTblFunction = {.Mode = Mode::JogTbl,
                                                .Header = &PrintOptions::JogTblHeader,
                                                .File = "IdxJogTbl",
                                                .Read = ReadJogTblFile,
                                                .WrongFile = Failure::WrongJogSpeedTableFile,
                                                .Modules = JogTblModules,
                                                .Reports = JogTblReports,
                                                .Contents = JogTblContents};

}  // namespace tarvis
