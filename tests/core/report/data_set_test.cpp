// Which reports and columns a function prints, by each element of its options alone.
#include "report/data_set.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/host_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

using Names = std::vector<std::string>;

struct DataSets : HostRun {
  void Load(const std::string& suffix, DataSetKind kind = DataSetKind::Data) {
    LoadDataSet(Run, *FindFunction(AllFunctions(), Run.Session.Mode), suffix, kind);
  }
  Names ListOf(const std::string& mode, const std::string& file, DataSetKind kind = DataSetKind::Data) {
    WriteLines(file, {});
    return ListOfFile(mode, kind);
  }
  Names ListOfFile(const std::string& mode, DataSetKind kind = DataSetKind::Data) {
    Run.Session.Mode = ModeOf(mode);
    Load({}, kind);
    Names names;
    for (int index = 0; index <= Run.Session.ModuleLast; ++index) {
      names.push_back(Run.Session.ModuleNames[index]);
    }
    return names;
  }
  // Expects the list to be `always` and, of the others, those whose element is exactly 1.
  template <typename Elements>
  void ExpectLists(const std::string& mode, Elements& elements, const Names& always,
                   const std::vector<std::pair<int, std::string>>& chosen) {
    for (std::size_t element = 1; element <= elements.size(); ++element) {
      for (auto& other : elements) other = 2;
      elements[element - 1] = 1;
      Names expected = always;
      for (const auto& [number, name] : chosen) {
        if (number == static_cast<int>(element)) expected.push_back(name);
      }
      EXPECT_THAT(ListOf(mode, mode + ".tmp"), ElementsAreArray(expected)) << mode << ", element " << element;
    }
  }
};

TEST_F(DataSets, AreNoneWithoutAFunctionButTheMasterStillHasARow) {
  EXPECT_EQ(CountMasterRows(Run, nullptr), 1);
  Run.Options.Cover = 1;
  EXPECT_EQ(CountMasterRows(Run, nullptr), 2);
}

TEST_F(DataSets, ListAReportForEachElementThatIsOne) {
  PrintOptions& options = Run.Options;
  ExpectLists("User", options.UserOption, {"rptUserPrm"}, {{5, "rptUserComment"}});
  ExpectLists("Trace", options.TraceOption, {"rptTraceGraph", "rptTraceObject"},
              {{1, "rptTraceTrigger"}, {2, "rptDataDate"}, {3, "rptUserPrm"}, {8, "rptUserComment"}});
  ExpectLists("RealTrace", options.RealTraceOption, {"rptRealTraceGraph"},
              {{1, "rptRealTraceInfo"}, {2, "rptUserPrm"}, {7, "rptUserComment"}});
  ExpectLists("Mecha", options.MechaOption, {"rptMechaGraph"},
              {{1, "rptMechaResonance"},
               {2, "rptMechaNotch"},
               {3, "rptMechaMeasure"},
               {4, "rptDataDate"},
               {5, "rptUserComment"}});
}

TEST_F(DataSets, ListAReportForEachElementOfASimulationThatIsOne) {
  WriteLines("Sim.tmp", {"PatternSetting,n,0,p,1"});
  const Names always{"rptSimGraph", "rptSimInfo", "rptTraceObject"};
  const std::vector<std::string> chosen{"rptSimRef1",
                                        "rptSimSettingSvMt",
                                        "rptSimSettingMecha",
                                        "rptDataDate",
                                        "rptUserPrm",
                                        "",
                                        "",
                                        "",
                                        "",
                                        "rptUserComment",
                                        "",
                                        "",
                                        ""};
  for (std::size_t element = 1; element <= 13; ++element) {
    for (auto& other : Run.Options.SimOption) other = 2;
    Run.Options.SimOption[element - 1] = 1;
    Names expected = always;
    if (!chosen[element - 1].empty()) expected.push_back(chosen[element - 1]);
    EXPECT_THAT(ListOfFile("Sim"), ElementsAreArray(expected)) << "element " << element;
  }
}

TEST_F(DataSets, ListTheComparisonsOfAnOverlapResult) {
  struct Case {
    std::int16_t Times;
    std::int16_t Parameters;
    std::int16_t Simulations;
    Names Chosen;
  };
  for (const Case& each : {Case{2, 2, 7, {}}, Case{1, 2, 7, {"rptSimCmpFileList", "rptSimCmpTime"}},
                           Case{2, 1, 7, {"rptSimCmpFileList", "rptSimCmpUser"}},
                           Case{2, 1, 8, {"rptSimCmpFileList", "rptSimCmpUserEx"}},
                           Case{2, 1, 11, {"rptSimCmpFileList", "rptSimCmpUserEx"}},
                           Case{1, 1, 1, {"rptSimCmpFileList", "rptSimCmpTime", "rptSimCmpUser"}}}) {
    for (auto& other : Run.Options.SimOption) other = 2;
    Run.Options.SimOption[10] = each.Times;
    Run.Options.SimOption[11] = each.Parameters;
    Run.Session.OverlapNum = each.Simulations;
    Names expected{"rptSimGraph", "rptTraceObjrctOverlap"};
    expected.insert(expected.end(), each.Chosen.begin(), each.Chosen.end());
    EXPECT_THAT(ListOf("Sim", "Sim.tmp", DataSetKind::OverlapResult), ElementsAreArray(expected));
  }
  EXPECT_THAT(ListOf("Trace", "Trace.tmp", DataSetKind::OverlapResult),
              ElementsAre("rptTraceGraph", "rptTraceObjrctOverlap"));
}

TEST_F(DataSets, ListATableByItsTypeAndItsComment) {
  struct Case {
    std::int16_t Type;
    std::int16_t Comment;
    Names Expected;
  };
  for (const Case& each :
       {Case{0, 0, {"rptIdxIdxTblTable"}}, Case{0, 1, {"rptIdxIdxTblTable", "rptUserComment"}},
        Case{1, 2, {"rptIdxIdxTblExTable"}}, Case{1, 1, {"rptIdxIdxTblExTable", "rptUserComment"}},
        Case{2, 0, {""}}, Case{-1, 1, {"", "rptUserComment"}}}) {
    Run.IdxTbl.TblType = each.Type;
    Run.Options.IdxTblOption.Comment = each.Comment;
    EXPECT_THAT(ListOf("IdxTbl", "IdxIdxTbl.tmp"), ElementsAreArray(each.Expected)) << each.Type;
  }
  for (const int comment : {0, 1, 2}) {
    Run.Options.ZoneTblOption = Run.Options.JogTblOption = static_cast<std::int16_t>(comment);
    const std::size_t reports = comment == 1 ? 2 : 1;
    EXPECT_EQ(ListOf("ZoneTbl", "IdxZoneTbl.tmp").size(), reports) << comment;
    EXPECT_EQ(ListOf("JogTbl", "IdxJogTbl.tmp").size(), reports) << comment;
  }
}

TEST_F(DataSets, PassFourElementsOnToTheColumnsOfTheParameterList) {
  const auto expectColumns = [&](const std::string& mode, auto& elements, int first) {
    for (std::size_t index = 0; index < elements.size(); ++index) {
      elements[index] = static_cast<std::int16_t>(10 + index + 1);  // element n holds 10 + n
    }
    ListOf(mode, mode + ".tmp");
    const PrintSession& session = Run.Session;
    EXPECT_THAT(std::vector({session.ShowPrmName, session.ShowPrmSwitches, session.ShowPrmUnit,
                             session.ShowPrmDefault}),
                ElementsAre(10 + first, 11 + first, 12 + first, 13 + first))
        << mode;
  };
  expectColumns("User", Run.Options.UserOption, 1);
  expectColumns("Trace", Run.Options.TraceOption, 4);
  expectColumns("RealTrace", Run.Options.RealTraceOption, 3);
  expectColumns("Sim", Run.Options.SimOption, 6);
}

TEST_F(DataSets, AreNumberedWithinTheirGroupInAnOverlappedRun) {
  Run.Session.OverlapNum = 4;
  for (const char* mode : {"Trace", "Sim"}) {
    Run.Session.Mode = ModeOf(mode);
    (std::string(mode) == "Sim" ? Run.Options.SimHeader : Run.Options.TraceHeader).TitleText = "Title";
    struct Case {
      const char* Suffix;
      const char* Title;
      const char* Group;
    };
    for (const Case& each : {Case{"1", "Title-Overlapping target", "Overlapping target"},
                             Case{"2", "Title-Overlapping data", "Overlapping data 1/3"},
                             Case{"4", "Title-Overlapping data", "Overlapping data 3/3"}}) {
      WriteLines(std::string(mode) + each.Suffix + ".tmp", {});
      Load(each.Suffix);
      EXPECT_EQ(Run.Session.ActiveHeader.TitleText, each.Title);
      EXPECT_EQ(Run.Session.TocGroup, each.Group);
    }
  }
}

}  // namespace
}  // namespace tarvis
