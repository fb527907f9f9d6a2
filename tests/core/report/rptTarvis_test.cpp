// The master report: rows, module lists, titles and groups, page footer, the way out.
#include "report/rptTarvis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printfiles/data_file_scan.h"
#include "report/data_set.h"
#include "report/master_document.h"
#include "support/host_run.h"
#include "support/sample_report.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string UserFile(int parameters) {
  std::string file = "File-Spec,3\r\nFileType,Parameters\r\nMechaInfo,Servo pack\r\nFile,axis1.usr\r\n";
  file += "UserNum," + std::to_string(parameters) + "\r\n";
  for (int index = 0; index < parameters; ++index) {
    file += "UserName,Pn" + std::to_string(100 + index) + ",Speed loop gain\r\nUserValue,40.0,40.0,Hz\r\n";
  }
  return file + "SwitchNum,0\r\nCommentCnt,1\r\nComment,as delivered\r\n";
}

struct MasterReport : HostRun {
  MasterReport() {
    Session.Mode = Mode::User;
    Options.UserHeader = {1, 1, 1, 1, 1, "Parameters"};
    Options.UserOption = {1, 1, 1, 1, 1};
    Options.TraceHeader = {1, 1, 1, 1, 1, "Tracing"};
    Options.SimHeader = {1, 1, 1, 1, 1, "Dynamics Simulation"};
  }

  void Load(const std::string& suffix, DataSetKind kind = DataSetKind::Data) {
    LoadDataSet(Report.Run, *FindFunction(AllFunctions(), Session.Mode), suffix, kind);
  }
  // Loads the data set of `mode` from an empty file and returns the module list.
  std::vector<std::string> ModulesOf(const std::string& mode, const std::string& file,
                                     DataSetKind kind = DataSetKind::Data) {
    Session.Mode = ModeOf(mode);
    Folder.Write(file, "");
    Load({}, kind);
    std::vector<std::string> names;
    for (int index = 0; index <= Session.ModuleLast; ++index) names.push_back(Session.ModuleNames[index]);
    return names;
  }
  int PagesOf(int parameters, const PageSetup& setup) {
    Folder.Write("User.tmp", UserFile(parameters));
    Options.UserOption[4] = 0;
    return static_cast<int>(Report.ComposeMaster(setup).Pages.size());
  }

  PrintSession& Session = Report.Run.Session;
  PrintOptions& Options = Report.Run.Options;
};

TEST_F(MasterReport, PrintsParametersAndCommentsUnderOneHeader) {
  Folder.Write("User.tmp", UserFile(3));
  const Document document = Report.ComposeMaster();
  EXPECT_EQ(document.Title, "Print Preview");
  ASSERT_EQ(document.Contents.size(), 2U);
  EXPECT_EQ(document.Contents[0].Text, "Parameters List");
  EXPECT_EQ(document.Contents[0].Top, 720 + 855);
  EXPECT_EQ(document.Contents[1].Text, "Comments");
  EXPECT_THAT(PrintedOf(document, "txtMechaInfo")[0].Texts, ElementsAre("Servo pack"));
}

TEST_F(MasterReport, FortyFourPlainRowsFitUnderTheHeaderOnA4AndFortyNineOnLaterPages) {
  const PageSetup a4;
  EXPECT_EQ(PagesOf(44, a4), 1);
  EXPECT_EQ(PagesOf(45, a4), 2);
  EXPECT_EQ(PagesOf(46, a4), 2);
  EXPECT_EQ(PagesOf(44 + 49, a4), 2);
  EXPECT_EQ(PagesOf(44 + 49 + 1, a4), 3);
}

TEST_F(MasterReport, FortyPlainRowsFitUnderTheHeaderOnLetterAndFortyFiveOnLaterPages) {
  const PageSetup letter{12240, 15840, 1440, 0, 720, 720};
  EXPECT_EQ(PagesOf(40, letter), 1);
  EXPECT_EQ(PagesOf(41, letter), 2);
  EXPECT_EQ(PagesOf(40 + 45, letter), 2);
  EXPECT_EQ(PagesOf(40 + 45 + 1, letter), 3);
}

TEST_F(MasterReport, DoesNotStrandTheHeaderAboveAListThatFillsAPage) {
  Folder.Write("User.tmp", UserFile(45));
  const Document document = Report.ComposeMaster();
  EXPECT_EQ(document.Contents[0].Page, 0);
}

TEST_F(MasterReport, ShowsPageNumberAndTotalAtTheFoot) {
  Folder.Write("User.tmp", UserFile(60));
  const Document document = Report.ComposeMaster();
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_THAT(PrintedOf(document, "txtPageNumber")[1].Texts, ElementsAre("2"));
  EXPECT_THAT(PrintedOf(document, "txtPageCount")[0].Texts, ElementsAre("2"));
  EXPECT_EQ(PrintedOf(document, "Label2").size(), 2U);
}

TEST_F(MasterReport, HidesThePageNumbersButKeepsTheFooterWithoutThePagesFlag) {
  Options.UserHeader.Pages = 0;
  EXPECT_EQ(PagesOf(45, {}), 2) << "the footer keeps its room";
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(PrintedOf(document, "txtPageNumber"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtPageCount"), IsEmpty());
}

TEST_F(MasterReport, ListsTheReportsOfEachFunctionByItsOptionElements) {
  Options.UserOption = {1, 1, 1, 1, 0};
  EXPECT_THAT(ModulesOf("User", "User.tmp"), ElementsAre("rptUserPrm"));
  Options.UserOption[4] = 1;
  EXPECT_THAT(ModulesOf("User", "User.tmp"), ElementsAre("rptUserPrm", "rptUserComment"));
  EXPECT_THAT(ModulesOf("UPWizard", "UPWizard.tmp"), ElementsAre("rptUPWizard"));
  Options.TraceOption = {1, 1, 1, 0, 0, 0, 0, 1, 0};
  EXPECT_THAT(ModulesOf("Trace", "Trace.tmp"),
              ElementsAre("rptTraceGraph", "rptTraceObject", "rptTraceTrigger", "rptDataDate", "rptUserPrm",
                          "rptUserComment"));
  Options.TraceOption = {};
  EXPECT_THAT(ModulesOf("Trace", "Trace.tmp"), ElementsAre("rptTraceGraph", "rptTraceObject"));
  Options.RealTraceOption = {1, 1, 0, 0, 0, 0, 1};
  EXPECT_THAT(ModulesOf("RealTrace", "RealTrace.tmp"),
              ElementsAre("rptRealTraceGraph", "rptRealTraceInfo", "rptUserPrm", "rptUserComment"));
  Options.MechaOption = {1, 1, 1, 1, 1};
  EXPECT_THAT(ModulesOf("Mecha", "Mecha.tmp"),
              ElementsAre("rptMechaGraph", "rptMechaResonance", "rptMechaNotch", "rptMechaMeasure",
                          "rptDataDate", "rptUserComment"));
  Options.ZoneTblOption = 1;
  EXPECT_THAT(ModulesOf("ZoneTbl", "IdxZoneTbl.tmp"), ElementsAre("rptIdxZoneTblTable", "rptUserComment"));
  Options.JogTblOption = 2;
  EXPECT_THAT(ModulesOf("JogTbl", "IdxJogTbl.tmp"), ElementsAre("rptIdxJogTblTable")) << "only 1 is on";
}

TEST_F(MasterReport, ListsTheSimulationReportsByPatternKind) {
  Options.SimOption = {1, 1, 1, 1, 1, 0, 0, 0, 0, 1, 0, 0, 0};
  Session.Mode = Mode::Sim;
  Folder.Write("Sim.tmp", "PatternSetting,n,0,p,1\r\n");
  Load({});
  EXPECT_EQ(Session.ModuleNames[3], "rptSimRef1");
  Folder.Write("Sim.tmp", "PatternSetting,n,0.5,p,1\r\n");
  Load({});
  EXPECT_EQ(Session.ModuleNames[3], "rptSimRef2");
  EXPECT_EQ(Session.ModuleLast, 8);
}

TEST_F(MasterReport, ListsTheComparisonsOfAnOverlappedSimulation) {
  Session.OverlapNum = 7;
  Options.SimOption = {};
  EXPECT_THAT(ModulesOf("Sim", "Sim.tmp", DataSetKind::OverlapResult),
              ElementsAre("rptSimGraph", "rptTraceObjrctOverlap"));
  Options.SimOption[10] = 1;
  EXPECT_THAT(ModulesOf("Sim", "Sim.tmp", DataSetKind::OverlapResult),
              ElementsAre("rptSimGraph", "rptTraceObjrctOverlap", "rptSimCmpFileList", "rptSimCmpTime"));
  Options.SimOption[10] = 0;
  Options.SimOption[11] = 1;
  EXPECT_THAT(ModulesOf("Sim", "Sim.tmp", DataSetKind::OverlapResult),
              ElementsAre("rptSimGraph", "rptTraceObjrctOverlap", "rptSimCmpFileList", "rptSimCmpUser"));
  Session.OverlapNum = 8;
  EXPECT_EQ(ModulesOf("Sim", "Sim.tmp", DataSetKind::OverlapResult).back(), "rptSimCmpUserEx");
}

TEST_F(MasterReport, AnUnknownTableTypeLeavesIndexZeroEmptyAlsoAfterAnotherPrint) {
  Options.IdxTblOption.Comment = 1;
  EXPECT_THAT(ModulesOf("IdxTbl", "IdxIdxTbl.tmp"), ElementsAre("rptIdxIdxTblTable", "rptUserComment"));
  Report.Run.IdxTbl.TblType = 2;
  EXPECT_THAT(ModulesOf("IdxTbl", "IdxIdxTbl.tmp"), ElementsAre("", "rptUserComment"));
  Options.IdxTblOption.Comment = 0;
  EXPECT_THAT(ModulesOf("IdxTbl", "IdxIdxTbl.tmp"), ElementsAre(""));
}

TEST_F(MasterReport, CopiesTheColumnSwitchesOfFunctionsWithParametersOnly) {
  Options.UserOption = {1, 2, 3, 4, 0};  // name, switches, unit, default: in the order of the elements
  ModulesOf("User", "User.tmp");
  EXPECT_EQ(Session.ShowPrmName, 1);
  EXPECT_EQ(Session.ShowPrmSwitches, 2);
  EXPECT_EQ(Session.ShowPrmUnit, 3);
  EXPECT_EQ(Session.ShowPrmDefault, 4);
  Options.TraceOption = {0, 0, 0, 5, 6, 7, 8, 0, 0};
  ModulesOf("Trace", "Trace.tmp", DataSetKind::OverlapResult);
  EXPECT_EQ(Session.ShowPrmName, 1) << "the overlap result copies nothing";
  ModulesOf("Trace", "Trace.tmp");
  EXPECT_EQ(Session.ShowPrmSwitches, 6);
  ModulesOf("Mecha", "Mecha.tmp");
  EXPECT_EQ(Session.ShowPrmSwitches, 6);
}

TEST_F(MasterReport, NamesAndGroupsOverlappedDataSets) {
  Session.Mode = Mode::Trace;
  Session.OverlapNum = 3;
  Options.TraceOption[8] = 1;
  for (const char* file : {"Trace.tmp", "Trace1.tmp", "Trace2.tmp", "Trace3.tmp"}) Folder.Write(file, "");
  Load({}, DataSetKind::OverlapResult);
  EXPECT_EQ(Session.ActiveHeader.TitleText, "Tracing-Overlapping result");
  EXPECT_EQ(Session.TocGroup, "Overlapping result");
  Load("1");
  EXPECT_EQ(Session.ActiveHeader.TitleText, "Tracing-Overlapping target");
  EXPECT_EQ(Session.TocGroup, "Overlapping target");
  Load("3");
  EXPECT_EQ(Session.ActiveHeader.TitleText, "Tracing-Overlapping data") << "titles don't pile up";
  EXPECT_EQ(Session.TocGroup, "Overlapping data 2/2");
}

TEST_F(MasterReport, AnOverlapResultWithoutDetailsHasNoGroup) {
  Session.Mode = Mode::Sim;
  Folder.Write("Sim.tmp", "");
  Load({}, DataSetKind::OverlapResult);
  EXPECT_EQ(Session.ActiveHeader.TitleText, "Dynamics Simulation-Overlapping result");
  EXPECT_EQ(Session.TocGroup, "");
}

TEST_F(MasterReport, AWrongFileEndsTheRunWithTheNumberOfItsFunction) {
  const std::vector<std::pair<std::string, std::string>> modes{
      {"User", "Parameter File is wrong."},
      {"UPWizard", "Parameter Wizard is wrong."},
      {"Trace", "Tracing File is wrong."},
      {"RealTrace", "Real-Time Tracing File is wrong."},
      {"Mecha", "Mechanical Analysis File is wrong."},
      {"Sim", "Dynamics Simulation File is wrong."},
      {"IdxTbl", "Program Table File is wrong."},
      {"ZoneTbl", "Zone Table File is wrong."},
      {"JogTbl", "Jog Speed Table File is wrong."}};
  for (const auto& [mode, message] : modes) {
    Session.Mode = ModeOf(mode);
    EXPECT_THROW(Load({}), RunEnded) << mode;
    EXPECT_EQ(Report.Desktop.Messages.back(),
              "Printing Error|" + message + "\nPrinting Process is canceled.");
  }
}

// A factory whose reports print one box each, named as the module list names them.
std::shared_ptr<ActiveReport> BoxReport(const std::string& name, ReportContext) {
  static std::vector<std::unique_ptr<std::string>> names;
  names.push_back(std::make_unique<std::string>(name));
  auto made = std::make_shared<SampleReport>(names.back()->c_str());
  made->Growing(SectionKind::Detail, "d").AddShape(names.back()->c_str(), {0, 0, 100, 1000});
  return made;
}

struct OverlappedTrace : MasterReport {
  OverlappedTrace() {
    Session.Mode = Mode::Trace;
    Session.OverlapMode = 1;
    Session.OverlapNum = 2;
    Options.TraceOption[8] = 1;
    for (const char* file : {"Trace.tmp", "Trace1.tmp", "Trace2.tmp"}) Folder.Write(file, "");
  }
  std::vector<std::string> Compose() {
    SelectHeaderOptions(Report.Run, AllFunctions());
    rptTarvis master(Report.Context(), AllFunctions(), BoxReport, Report.Windows);
    const Document document = tarvis::Compose(master, PageSetup{}, ArialMeasurer());
    std::vector<std::string> places;
    for (std::size_t page = 0; page < document.Pages.size(); ++page) {
      std::string boxes = std::to_string(page + 1) + ":";
      const Page& range = document.Pages[page];
      for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
        const Item& item = document.Items[index];
        if (item.Kind == ItemKind::Box) boxes += " " + std::string(document.Names[item.Control]);
      }
      places.push_back(boxes);
    }
    return places;
  }
};

TEST_F(OverlappedTrace, PrintsResultTargetAndDataEachOnPagesOfTheirOwn) {
  EXPECT_THAT(Compose(), ElementsAre("1: rptTraceGraph rptTraceObjrctOverlap",
                                     "2: rptTraceGraph rptTraceObject", "3: rptTraceGraph rptTraceObject"));
  EXPECT_EQ(Session.FinishedReports, 3);
}

TEST_F(OverlappedTrace, GivesTheDocumentTheTitleWithoutWhatEachDataSetAddsToIt) {
  Session.ActiveHeader = Options.TraceHeader;
  rptTarvis master(Report.Context(), AllFunctions(), BoxReport, Report.Windows);
  EXPECT_EQ(ComposeMasterReport(Report.Run, master, PageSetup{}, ArialMeasurer()).Title, "Tracing");
  EXPECT_EQ(Session.ActiveHeader.TitleText, "Tracing-Overlapping data");
}

TEST_F(OverlappedTrace, PrintsTheResultOnlyWithoutDetails) {
  Options.TraceOption[8] = 0;
  EXPECT_THAT(Compose(), ElementsAre("1: rptTraceGraph rptTraceObjrctOverlap"));
}

TEST_F(OverlappedTrace, HasTheNumberOfDataSetsThatItsFileGivesFirst) {
  const auto numberOf = [this](const std::string& lines) {
    Session.OverlapNum = 0;
    Folder.Write("Trace.tmp", lines);
    ScanOverlap(Report.Run, "Trace.tmp");
    return Session.OverlapNum;
  };
  EXPECT_EQ(numberOf("OverlapMode,1\r\nOverlapNum,3\r\nOverlapNum,5\r\n"), 3);
  EXPECT_EQ(numberOf("OverlapNum,3\r\nOverlapMode,1\r\nOverlapNum,5\r\n"), 3);
}

TEST_F(OverlappedTrace, StopsAtTheFirstLookAtANumberOfDataSetsThatIsNone) {
  Folder.Write("Trace.tmp", "OverlapMode,1\r\nOverlapNum,three\r\n");
  EXPECT_EQ(RunTimeFailureOf([this] { ScanOverlap(Report.Run, "Trace.tmp"); }),
            "Trace.tmp:2: OverlapNum: not a number: 'three'");
}

TEST_F(OverlappedTrace, StopsAtANumberOfDataSetsThatCannotBeCounted) {
  const auto failureOf = [this](const std::string& number) {
    Folder.Write("Trace.tmp", "OverlapMode,1\r\nOverlapNum," + number + "\r\n");
    ScanOverlap(Report.Run, "Trace.tmp");
    return RunTimeFailureOf([this] { Compose(); });
  };
  EXPECT_EQ(failureOf("32767"), "Trace.tmp:2: OverlapNum: number out of range: '32767'");
  EXPECT_EQ(failureOf("-1"), "Trace.tmp:2: OverlapNum: number out of range: '-1'");
  Options.Cover = 1;
  EXPECT_EQ(failureOf("-1"), "Trace.tmp:2: OverlapNum: number out of range: '-1'") << "with a cover letter";
  EXPECT_EQ(failureOf("32766"), "Trace.tmp:2: OverlapNum: number out of range: '32766'");
  Options.Cover = 0;
  EXPECT_THROW(Compose(), RunEnded) << "the file of the third data set is missing";
}

TEST_F(OverlappedTrace, PrintsTheResultOnlyWhereNoDataSetsAreCounted) {
  Session.OverlapNum = 0;
  EXPECT_THAT(Compose(), ElementsAre("1: rptTraceGraph rptTraceObjrctOverlap"));
  Session.OverlapNum = -1;
  Options.TraceOption[8] = 0;
  EXPECT_THAT(Compose(), ElementsAre("1: rptTraceGraph rptTraceObjrctOverlap")) << "without details";
}

TEST_F(OverlappedTrace, ModeTwoListsTheResultButNoDetails) {
  Session.OverlapMode = 2;
  EXPECT_THAT(Compose(), ElementsAre("1: rptTraceGraph rptTraceObjrctOverlap"));
}

TEST_F(OverlappedTrace, ModeZeroPrintsOneOrdinarySet) {
  Session.OverlapMode = 0;
  EXPECT_THAT(Compose(), ElementsAre("1: rptTraceGraph rptTraceObject"));
}

TEST_F(OverlappedTrace, ACoverComesFirst) {
  Options.Cover = 1;
  // The cover of this test doesn't count itself as finished, as the real one does.
  Session.Mode = Mode::User;
  Folder.Write("User.tmp", "");
  EXPECT_THAT(Compose(), ElementsAre("1: rptCover", "2: rptUserPrm rptUserComment"));
}

TEST_F(OverlappedTrace, AClosedGateNeverLoopsForEver) {
  Options.Cover = 1;  // not counted as finished: the gate stays closed
  EXPECT_THROW(Compose(), RunTimeFailure);
}

TEST_F(OverlappedTrace, AMissingCompanionEndsTheRunWithFailureFour) {
  std::filesystem::remove(Folder.Path() / "Trace2.tmp");
  EXPECT_THROW(Compose(), RunEnded);
  EXPECT_EQ(Report.Desktop.Messages.back(),
            "Printing Error|Tracing File is wrong.\nPrinting Process is canceled.");
}

TEST_F(MasterReport, OffersItsToolOncePerWindow) {
  Folder.Write("User.tmp", UserFile(1));
  for (int show = 0; show < 2; ++show) {
    Report.ComposeMaster();
    ASSERT_EQ(Report.Master->Tools.size(), 1U);
    EXPECT_EQ(Report.Master->Tools[0].Caption, "Editing of the Printing Items");
    EXPECT_EQ(Report.Master->Tools[0].ID, 999);
    EXPECT_TRUE(Report.Master->TOCVisible);
    EXPECT_EQ(Report.Master->TOCWidth, 2300);
  }
}

TEST_F(MasterReport, ItsToolGoesBackToTheDialogWithoutEndingTheRun) {
  Folder.Write("User.tmp", UserFile(1));
  Report.ComposeMaster();
  Report.Master->ActiveReport_ToolbarClick(999);
  EXPECT_THAT(Report.Windows.Calls, ElementsAre("unload", "dialog"));
  Report.Master->ActiveReport_QueryClose(1);
  EXPECT_TRUE(Folder.Has("User.tmp"));
}

TEST_F(MasterReport, CloseToolAndClosingByTheUserEndTheRun) {
  Folder.Write("User.tmp", UserFile(1));
  Report.ComposeMaster();
  EXPECT_THROW(Report.Master->ActiveReport_ToolbarClick(5113), RunEnded);
  EXPECT_FALSE(Folder.Has("User.tmp"));
  EXPECT_THROW(Report.Master->ActiveReport_QueryClose(0), RunEnded);
  EXPECT_NO_THROW(Report.Master->ActiveReport_ToolbarClick(1));
}

TEST_F(MasterReport, HasTheHeaderOptionsOfTheFunctionInTheMode) {
  SelectHeaderOptions(Report.Run, AllFunctions());
  EXPECT_EQ(Session.ActiveHeader.TitleText, "Parameters");
}

}  // namespace
}  // namespace tarvis
