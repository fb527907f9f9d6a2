// The readers of the program, zone and jog speed tables, key by key.
#include <gtest/gtest.h>

#include "core/support/line_cases.h"
#include "printfiles/idx_tbl_file.h"
#include "printfiles/jog_tbl_file.h"
#include "printfiles/zone_tbl_file.h"

namespace tarvis {
namespace {

using enum LastPart;

const HostFile kIdxTblFile = {"IdxIdxTbl.tmp", ReadIdxTblFile, {}};
const HostFile kZoneTblFile = {"IdxZoneTbl.tmp", ReadZoneTblFile, {}};
const HostFile kJogTblFile = {"IdxJogTbl.tmp", ReadJogTblFile, {}};

class TableFiles : public testing::Test, protected TestRun {
 protected:
  using TestRun::Run;

  bool Read(const HostFile& file, const std::vector<std::string>& lines) {
    Load(file.Name, lines);
    return file.Read(Run);
  }
  std::string Refused(const HostFile& file, const std::vector<std::string>& lines) {
    return Read(file, lines) ? "(accepted)" : Run.Session.Diagnosis;
  }
  std::string Stopped(const HostFile& file, const std::vector<std::string>& lines) {
    return RunTimeFailureOf([&] { Read(file, lines); });
  }
  static TextLine Unit(const char* key, UnitRow& row) {
    return {key, kRest, {row.Caption, Unescaped(row.Unit)}};
  }
};

TEST_F(TableFiles, FillWhatEachKeyNames) {
  IdxTblData& table = Run.IdxTbl;
  ExpectTextLines(*this, kIdxTblFile,
                  {Unit("Position_Unit", table.Position_Unit), Unit("Speed_Unit", table.Speed_Unit),
                   Unit("Rdst_Unit", table.Rdst_Unit), Unit("Rspd_Unit", table.Rspd_Unit),
                   Unit("AccDec_Unit", table.AccDec_Unit)});
  ExpectTextLines(*this, kZoneTblFile, {{"Pos-Unit", kRest, {Unescaped(Run.ZoneTbl.PosUnit)}}});
  ExpectTextLines(*this, kJogTblFile, {{"Speed-Unit", kRest, {Unescaped(Run.JogTbl.SpeedUnit)}}});
  for (const HostFile& file : {kIdxTblFile, kZoneTblFile, kJogTblFile}) {
    ExpectHeaderLines(*this, file);
    ExpectTextLines(*this, file, {{"Comment", kRest, {Unescaped(Run.User.Comment)}}});
  }
}

TEST_F(TableFiles, ReadTheirNumbers) {
  ExpectNumberLines(*this, kIdxTblFile,
                    {{"TblType", &Run.IdxTbl.TblType}, {"IndexCnt", &Run.IdxTbl.IndexCnt}});
  ExpectNumberLines(*this, kZoneTblFile, {{"ZoneCnt", &Run.ZoneTbl.ZoneCnt}});
  ExpectNumberLines(*this, kJogTblFile, {{"JspdCnt", &Run.JogTbl.JspdCnt}});
  for (const HostFile& file : {kIdxTblFile, kZoneTblFile, kJogTblFile}) {
    ExpectNumberLines(*this, file,
                      {{"File-Spec", &Run.Header.FileSpec}, {"CommentCnt", &Run.User.CommentCnt}});
  }
}

TEST_F(TableFiles, SpellTheirUnitsEachInItsOwnWay) {
  ExpectUnknownKeys(*this, kIdxTblFile, {"Position-Unit", "Speed-Unit", "Pos-Unit", "Zone", "Jspd"});
  ExpectUnknownKeys(*this, kZoneTblFile, {"Pos_Unit", "Position_Unit", "Speed-Unit", "Index", "Jspd"});
  ExpectUnknownKeys(*this, kJogTblFile, {"Speed_Unit", "Pos-Unit", "Index", "Zone"});
}

TEST_F(TableFiles, KnowNeitherParametersNorDates) {
  for (const HostFile& file : {kIdxTblFile, kZoneTblFile, kJogTblFile}) {
    ExpectUnknownKeys(*this, file, {"UserNum", "SwitchNum", "GetDataDate", "CursolSelect"});
  }
}

TEST_F(TableFiles, FillAStepInItsOrder) {
  ASSERT_TRUE(Read(kIdxTblFile, {"IndexCnt,1", "Index,0,I+1000,3000,100,50,10,20,:N,N0T0,1,END,1"}));
  const IdxRow& row = Run.IdxTbl.Index[0];
  EXPECT_EQ(row.Step, "0");
  EXPECT_EQ(row.Pos, "I+1000");
  EXPECT_EQ(row.Spd, "3000");
  EXPECT_EQ(row.Rdst, "100");
  EXPECT_EQ(row.Rspd, "50");
  EXPECT_EQ(row.Acc, "10");
  EXPECT_EQ(row.Dec, "20");
  EXPECT_EQ(row.Pout, ":N");
  EXPECT_EQ(row.Event, "N0T0");
  EXPECT_EQ(row.Loop, "1");
  EXPECT_EQ(row.Next, "END");
  EXPECT_EQ(row.Defined, 1);
}

TEST_F(TableFiles, StopAtAStepThatIsTooShortOrTooLong) {
  EXPECT_EQ(Stopped(kIdxTblFile, {"IndexCnt,1", "Index,0,1,2,3,4,5,6,7,8,9,10"}),
            "IdxIdxTbl.tmp:2: Index: element 12: not a number: ''");
  EXPECT_EQ(Stopped(kIdxTblFile, {"IndexCnt,1", "Index,0,1,2,3,4,5,6,7,8,9,10,1,x"}),
            "IdxIdxTbl.tmp:2: Index: element 12: not a number: '1,x'");
}

TEST_F(TableFiles, MoveAZonesTailAfterAComma) {
  ASSERT_TRUE(Read(kZoneTblFile, {"ZoneCnt,1", "Zone,007,-1,5,+2,5"}));
  EXPECT_EQ(Run.ZoneTbl.Zone[0].Id, 7);
  EXPECT_EQ(Run.ZoneTbl.Zone[0].ZoneN, "-1");
  EXPECT_EQ(Run.ZoneTbl.Zone[0].ZoneP, "5,+2,5");
}

TEST_F(TableFiles, KeepASpeedsCommas) {
  ASSERT_TRUE(Read(kJogTblFile, {"JspdCnt,1", "Jspd,3,1,500"}));
  EXPECT_EQ(Run.JogTbl.Jspd[0].Id, 3);
  EXPECT_EQ(Run.JogTbl.Jspd[0].Speed, "1,500");
}

TEST_F(TableFiles, StopAtAnIdThatIsNoNumber) {
  EXPECT_EQ(Stopped(kZoneTblFile, {"ZoneCnt,1", "Zone,A,1,2"}),
            "IdxZoneTbl.tmp:2: Zone: element 1: not a number: 'A'");
  EXPECT_EQ(Stopped(kJogTblFile, {"JspdCnt,1", "Jspd"}),
            "IdxJogTbl.tmp:2: Jspd: element 1: not a number: ''");
}

// A table's count key, its row key, and a row that reads.
struct Table {
  HostFile File;
  std::string Count;
  std::string Row;
  std::string Values;
};

const std::vector<Table> kTables = {{kIdxTblFile, "IndexCnt", "Index", ",0,1,2,3,4,5,6,7,8,9,10,1"},
                                    {kZoneTblFile, "ZoneCnt", "Zone", ",1,-5,5"},
                                    {kJogTblFile, "JspdCnt", "Jspd", ",1,500"}};

TEST_F(TableFiles, NeedTheCountAheadOfTheRows) {
  for (const auto& [file, count, row, values] : kTables) {
    EXPECT_EQ(Refused(file, {row + values, count + ",1"}),
              file.Name + ":1: " + row + ": comes before '" + count + "'");
  }
}

TEST_F(TableFiles, RefuseOneRowMoreThanTheyCount) {
  for (const auto& [file, count, row, values] : kTables) {
    std::vector<std::string> lines(128, row + values);
    lines.insert(lines.begin(), count + ",128");
    EXPECT_TRUE(Read(file, lines));
    lines.push_back(row + values);
    EXPECT_EQ(Refused(file, lines), file.Name + ":130: " + row + ": one more than '" + count + "' announces");
    EXPECT_EQ(Refused(file, {count + ",0", row + values}),
              file.Name + ":2: " + row + ": one more than '" + count + "' announces");
    EXPECT_FALSE(Read(file, {count + ",-1", row + values}));
  }
}

TEST_F(TableFiles, LeaveRowsThatDoNotComeEmpty) {
  for (const auto& [file, count, row, values] : kTables)
    ASSERT_TRUE(Read(file, {count + ",3", row + values}));
  EXPECT_EQ(Run.IdxTbl.Index[2].Step, "");
  EXPECT_EQ(Run.IdxTbl.Index[2].Defined, 0);
  EXPECT_EQ(Run.ZoneTbl.Zone[2].Id, 0);
  EXPECT_EQ(Run.JogTbl.Jspd[2].Speed, "");
}

TEST_F(TableFiles, KeepTheRunningRowAtASecondCount) {
  for (const auto& [file, count, row, values] : kTables) {
    ASSERT_TRUE(Read(file, {count + ",2", row + values, count + ",2", row + values}));
    EXPECT_FALSE(Read(file, {count + ",2", row + values, count + ",1", row + values}));
  }
  EXPECT_EQ(Run.ZoneTbl.Zone[0].ZoneN, "") << "the rows are dropped";
}

TEST_F(TableFiles, HoldAsManyRowsAs16BitsCount) {
  for (const auto& [file, count, row, values] : kTables) {
    std::vector<std::string> lines(32767, row + values);
    lines.insert(lines.begin(), count + ",32767");
    EXPECT_TRUE(Read(file, lines));
    EXPECT_TRUE(Stopped(file, {count + ",32768"}).ends_with("number out of range: '32768'"));
    EXPECT_TRUE(Stopped(file, {count + ",-2"}).ends_with(count + ": a count can't be below -1: '-2'"));
  }
}

TEST_F(TableFiles, KeepWhatASecondReadDoesNotName) {
  ASSERT_TRUE(
      Read(kIdxTblFile, {"TblType,1", "IndexCnt,1", "Index,9,1,2,3,4,5,6,7,8,9,10,1", "Rdst_Unit,c,u"}));
  ASSERT_TRUE(Read(kIdxTblFile, {"TblType,0"}));
  EXPECT_EQ(Run.IdxTbl.TblType, 0);
  EXPECT_EQ(Run.IdxTbl.Index[0].Step, "9");
  EXPECT_EQ(Run.IdxTbl.Rdst_Unit.Unit, "u");
}

TEST_F(TableFiles, HaveNoRowsWithoutCountAndRows) {
  for (const Table& table : kTables) EXPECT_TRUE(Read(table.File, {"File-Spec,1"}));
  EXPECT_EQ(Run.IdxTbl.IndexCnt, 0);
  EXPECT_EQ(Run.ZoneTbl.ZoneCnt, 0);
  EXPECT_EQ(Run.JogTbl.JspdCnt, 0);
}

}  // namespace
}  // namespace tarvis
