// The item pages of the functions with graphs: which boxes enable which.
#include "dialogs/dialog_run.h"

namespace tarvis {
namespace {

const std::vector<const char*> UserBoxes{"chkItemUser_0", "chkItemUser_1", "chkItemUser_2", "chkItemUser_3",
                                         "chkItemUser_4"};

class GraphPages : public DialogRun {
 protected:
  // '1' for each of the boxes that is enabled, '0' for each that is grey.
  std::string Enabled(const char* page, const std::vector<const char*>& boxes) {
    std::string enabled;
    for (const char* box : boxes) enabled += Check(box, page).isEnabled() ? '1' : '0';
    return enabled;
  }
  std::string Marks(const char* page, const std::vector<const char*>& boxes) {
    std::string marks;
    for (const char* box : boxes) marks += Check(box, page).isChecked() ? '1' : '0';
    return marks;
  }
  // Clicks each box twice and looks which element went off and on again.
  template <std::size_t Count>
  void ExpectElements(const char* page, const std::vector<std::pair<const char*, int>>& boxes,
                      std::array<std::int16_t, Count>& elements) {
    for (const auto& [box, element] : boxes) {
      SCOPED_TRACE(box);
      elements.fill(1);
      Page(page).Load();
      Click(Check(box, page));
      for (std::size_t i = 0; i < Count; ++i)
        EXPECT_EQ(elements[i], static_cast<int>(i) + 1 == element ? 0 : 1) << i + 1;
      Click(Check(box, page));
      EXPECT_EQ(elements.at(static_cast<std::size_t>(element - 1)), 1);
      elements.at(static_cast<std::size_t>(element - 1)) = 0;
      Page(page).Load();
      EXPECT_FALSE(Check(box, page).isChecked());
    }
  }
};

const std::vector<const char*> TraceDetails{"chkItemGraph_0", "chkItemGraph_1", "chkItemUser_0",
                                            "chkItemUser_1",  "chkItemUser_2",  "chkItemUser_3",
                                            "chkItemUser_4",  "chkItemEtc"};
const std::vector<const char*> SimDetails{
    "chkItemGraph_0", "chkItemGraph_1", "chkItemGraph_2", "chkItemGraph_3", "chkItemUser_0",
    "chkItemUser_1",  "chkItemUser_2",  "chkItemUser_3",  "chkItemUser_4",  "chkItemEtc"};

TEST_F(GraphPages, BoxesOfTracingDriveTheirElements) {
  WriteFile("Trace.tmp", "OverlapMode,1\r\nOverlapNum,3\r\n");
  Open(4, "200", "Trace");
  ClickTab(Page("InfTrace").Tabs(), 1);
  ExpectElements("InfTrace",
                 {{"chkItemGraph_0", 1},
                  {"chkItemGraph_1", 2},
                  {"chkItemUser_0", 3},
                  {"chkItemUser_1", 4},
                  {"chkItemUser_2", 5},
                  {"chkItemUser_3", 6},
                  {"chkItemUser_4", 7},
                  {"chkItemEtc", 8},
                  {"chkItemOverlap", 9}},
                 Run.Options.TraceOption);
}

TEST_F(GraphPages, BoxesOfRealTimeTracingDriveTheirElements) {
  Open(4, "200", "RealTrace");
  ClickTab(Page("InfRealTrace").Tabs(), 1);
  ExpectElements("InfRealTrace",
                 {{"chkItemGraph_0", 1},
                  {"chkItemUser_0", 2},
                  {"chkItemUser_1", 3},
                  {"chkItemUser_2", 4},
                  {"chkItemUser_3", 5},
                  {"chkItemUser_4", 6},
                  {"chkItemEtc", 7}},
                 Run.Options.RealTraceOption);
}

TEST_F(GraphPages, BoxesOfMechanicalAnalysisDriveTheirElements) {
  Open(4, "200", "Mecha");
  ClickTab(Page("InfMecha").Tabs(), 1);
  ExpectElements("InfMecha",
                 {{"chkItemGraph_0", 1},
                  {"chkItemGraph_1", 2},
                  {"chkItemGraph_2", 3},
                  {"chkItemGraph_3", 4},
                  {"chkItemEtc", 5}},
                 Run.Options.MechaOption);
}

const std::vector<std::pair<const char*, int>> SimElements{
    {"chkItemGraph_0", 1}, {"chkItemGraph_1", 3}, {"chkItemGraph_2", 2}, {"chkItemGraph_3", 4},
    {"chkItemUser_0", 5},  {"chkItemUser_1", 6},  {"chkItemUser_2", 7},  {"chkItemUser_3", 8},
    {"chkItemUser_4", 9},  {"chkItemEtc", 10}};

TEST_F(GraphPages, BoxesOfSimulationDriveTheirElementsWithTwoOfThemCrossed) {
  Open(1, "200", "Sim");
  ClickTab(Page("InfSim").Tabs(), 1);
  ExpectElements("InfSim", SimElements, Run.Options.SimOption);
}

TEST_F(GraphPages, BoxesOfComparedSimulationsDriveTheSameElementsAndThreeMore) {
  WriteFile("Sim.tmp", "OverlapMode,1\r\nOverlapNum,3\r\n");
  Open(4, "200", "SimEx");
  ClickTab(Page("InfSimOverlap").Tabs(), 2);
  ExpectElements("InfSimOverlap", SimElements, Run.Options.SimOption);
  ClickTab(Page("InfSimOverlap").Tabs(), 1);
  ExpectElements("InfSimOverlap",
                 {{"chkItemOverlap_0", 11}, {"chkItemOverlap_1", 12}, {"chkItemOverlap_2", 13}},
                 Run.Options.SimOption);
}

TEST_F(GraphPages, ParametersSwitchedOffInTheOptionsGreyTheirFourBoxesWhichKeepTheirMarks) {
  Run.Options.TraceOption[2] = 0;
  Open(4, "200", "Trace");
  EXPECT_EQ(Enabled("InfTrace", UserBoxes), "10000");
  EXPECT_EQ(Marks("InfTrace", UserBoxes), "01111");
  EXPECT_EQ(Run.Options.TraceOption[3], 1);
}

TEST_F(GraphPages, SwitchesInfoDependsOnParametersAndOnName) {
  for (const auto& [mode, page] : std::vector<std::pair<const char*, const char*>>{
           {"Trace", "InfTrace"}, {"RealTrace", "InfRealTrace"}, {"Sim", "InfSim"}}) {
    SCOPED_TRACE(page);
    DefaultPrintOptions(Run);
    Open(1, "200", mode);
    ClickTab(Page(page).Tabs(), 1);
    Click(Check("chkItemUser_1", page));
    EXPECT_EQ(Enabled(page, UserBoxes), "11011");
    Click(Check("chkItemUser_0", page));
    EXPECT_EQ(Enabled(page, UserBoxes), "10000");
    Click(Check("chkItemUser_0", page));
    EXPECT_EQ(Enabled(page, UserBoxes), "11011");
    Click(Check("chkItemUser_1", page));
    EXPECT_EQ(Enabled(page, UserBoxes), "11111");
    EXPECT_EQ(Marks(page, UserBoxes), "11111");
  }
}

struct Scan {
  const char* Content;  // nullptr for no file
  int Mode;
  int Num;
};

TEST_F(GraphPages, TheScanReadsModeAndNumberUntilBothAreFoundOrTheModeIsZero) {
  for (const Scan& scan :
       {Scan{"OverlapMode,1\r\nOverlapNum,3\r\n", 1, 3}, Scan{"OverlapNum,3\r\nOverlapMode,1\r\n", 1, 3},
        Scan{"OverlapMode,0\r\nOverlapNum,3\r\n", 0, 0}, Scan{"OverlapNum,3\r\nOverlapMode,0\r\n", 0, 3},
        Scan{"OverlapMode,1\r\nOverlapMode,2\r\nOverlapNum,3\r\n", 2, 0}, Scan{"Title,x\r\n", 0, 0},
        Scan{"", 7, 8}, Scan{nullptr, 7, 8}}) {
    Run.Session.OverlapMode = 7;
    Run.Session.OverlapNum = 8;
    QFile::remove(QString::fromStdString(Folder() + "/Trace.tmp"));
    if (scan.Content != nullptr) WriteFile("Trace.tmp", scan.Content);
    Open(4, "200", "Trace");
    EXPECT_EQ(Run.Session.OverlapMode, scan.Mode) << (scan.Content == nullptr ? "no file" : scan.Content);
    EXPECT_EQ(Run.Session.OverlapNum, scan.Num) << (scan.Content == nullptr ? "no file" : scan.Content);
  }
}

TEST_F(GraphPages, ABadNumberInTheScanNamesFileAndLine) {
  WriteFile("Trace.tmp", "Title,x\r\nOverlapMode,one\r\n");
  try {
    Run.Session.HostEdition = 4;
    Run.Session.HostVersion = "200";
    Run.Session.Mode = Mode::Trace;
    delete new PrintSetting(Run, {});
    FAIL();
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.Place().File, "Trace.tmp");
    EXPECT_EQ(failure.Place().Line, 2);
    EXPECT_EQ(failure.Place().Key, "OverlapMode");
  }
}

TEST_F(GraphPages, APlainTraceGreysTheOverlapBoxOnly) {
  WriteFile("Trace.tmp", "OverlapMode,0\r\nOverlapNum,3\r\n");
  Open(4, "200", "Trace");
  EXPECT_FALSE(Check("chkItemOverlap", "InfTrace").isEnabled());
  EXPECT_TRUE(Check("chkItemOverlap", "InfTrace").isChecked());
  EXPECT_EQ(Enabled("InfTrace", TraceDetails), "11111111");
}

TEST_F(GraphPages, DetailOfOverlappedTracesRulesAllOtherItems) {
  WriteFile("Trace.tmp", "OverlapMode,1\r\nOverlapNum,3\r\n");
  Open(4, "200", "Trace");
  ClickTab(Page("InfTrace").Tabs(), 1);
  TickBox& overlap = Check("chkItemOverlap", "InfTrace");
  EXPECT_TRUE(overlap.isEnabled());
  Click(overlap);
  EXPECT_EQ(Enabled("InfTrace", TraceDetails), "00000000");
  EXPECT_TRUE(overlap.isEnabled());
  Click(overlap);
  EXPECT_EQ(Enabled("InfTrace", TraceDetails), "11111111");
  Click(Check("chkItemUser_0", "InfTrace"));
  Click(overlap);
  Click(overlap);
  EXPECT_EQ(Enabled("InfTrace", TraceDetails), "11100001");
}

TEST_F(GraphPages, SwitchingDetailOnEnablesSwitchesInfoWithoutALookAtName) {
  WriteFile("Trace.tmp", "OverlapMode,1\r\nOverlapNum,3\r\n");
  Open(4, "200", "Trace");
  ClickTab(Page("InfTrace").Tabs(), 1);
  Click(Check("chkItemUser_1", "InfTrace"));
  EXPECT_EQ(Enabled("InfTrace", UserBoxes), "11011");
  Click(Check("chkItemOverlap", "InfTrace"));
  Click(Check("chkItemOverlap", "InfTrace"));
  EXPECT_EQ(Enabled("InfTrace", UserBoxes), "11111");
}

TEST_F(GraphPages, DetailAndParametersBothOffAtLoadThenDetailOn) {
  WriteFile("Trace.tmp", "OverlapMode,1\r\nOverlapNum,3\r\n");
  Run.Options.TraceOption[8] = 0;
  Run.Options.TraceOption[2] = 0;
  Open(4, "200", "Trace");
  ClickTab(Page("InfTrace").Tabs(), 1);
  Click(Check("chkItemOverlap", "InfTrace"));
  EXPECT_EQ(Enabled("InfTrace", TraceDetails), "11100001");
}

TEST_F(GraphPages, SettingsKeepEveryBoxOfTracingAliveWithoutAFile) {
  Open(4, "200", "PrnSetting");
  ChooseFunction(1);
  ClickTab(Page("InfTrace").Tabs(), 1);
  Click(Check("chkItemOverlap", "InfTrace"));
  EXPECT_EQ(Run.Options.TraceOption[8], 0);
  EXPECT_TRUE(Check("chkItemOverlap", "InfTrace").isEnabled());
  EXPECT_EQ(Enabled("InfTrace", TraceDetails), "11111111");
}

TEST_F(GraphPages, TheWizardsModeLeavesTheOverlapBoxAlive) {
  WriteFile("Trace.tmp", "OverlapMode,0\r\n");
  Open(1, "200", "UPWizard");
  EXPECT_TRUE(Check("chkItemOverlap", "InfTrace").isEnabled());
}

TEST_F(GraphPages, APlainSimulationGreysTheThreeOverlapBoxesOnly) {
  WriteFile("Sim.tmp", "OverlapMode,0\r\n");
  Open(4, "200", "SimEx");
  EXPECT_EQ(Enabled("InfSimOverlap", {"chkItemOverlap_0", "chkItemOverlap_1", "chkItemOverlap_2"}), "000");
  EXPECT_EQ(Enabled("InfSimOverlap", SimDetails), "1111111111");
}

TEST_F(GraphPages, TheDetailOfOverlappedSimulationsAloneEnablesTheDetailsTab) {
  WriteFile("Sim.tmp", "OverlapMode,1\r\nOverlapNum,2\r\n");
  Open(4, "200", "SimEx");
  ClickTab(Page("InfSimOverlap").Tabs(), 1);
  Click(Check("chkItemOverlap_0", "InfSimOverlap"));
  Click(Check("chkItemOverlap_1", "InfSimOverlap"));
  EXPECT_EQ(Run.Options.SimOption[10], 0);
  EXPECT_EQ(Run.Options.SimOption[11], 0);
  EXPECT_EQ(Enabled("InfSimOverlap", SimDetails), "1111111111");
  Click(Check("chkItemOverlap_2", "InfSimOverlap"));
  EXPECT_EQ(Enabled("InfSimOverlap", SimDetails), "0000000000");
  ClickTab(Page("InfSimOverlap").Tabs(), 2);
  EXPECT_EQ(Page("InfSimOverlap").Tabs().CurrentTab(), 2) << "the tab itself stays open";
}

TEST_F(GraphPages, SettingsLeaveTheDetailsTabAliveWhateverTheDetailBoxSays) {
  Run.Options.SimOption[12] = 0;
  Open(4, "200", "PrnSetting");
  ChooseFunction(4);
  EXPECT_EQ(Enabled("InfSimOverlap", {"chkItemOverlap_0", "chkItemOverlap_1", "chkItemOverlap_2"}), "111");
  EXPECT_EQ(Enabled("InfSimOverlap", SimDetails), "1111111111");
}

TEST_F(GraphPages, ThePlainSimulationPageNeverScans) {
  WriteFile("Sim.tmp", "OverlapMode,1\r\nOverlapNum,2\r\n");
  Open(1, "200", "Sim");
  EXPECT_EQ(Run.Session.OverlapMode, 0);
  EXPECT_EQ(Run.Session.OverlapNum, 0);
}

TEST_F(GraphPages, BothSimulationPagesShowTheSameOptions) {
  Open(1, "200", "Sim");
  ClickTab(Page("InfSim").Tabs(), 1);
  Click(Check("chkItemGraph_1", "InfSim"));
  Open(4, "200", "PrnSetting");
  ChooseFunction(4);
  EXPECT_FALSE(Check("chkItemGraph_1", "InfSimOverlap").isChecked());
  EXPECT_EQ(Run.Options.SimOption, (std::array<std::int16_t, 13>{1, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
}

}  // namespace
}  // namespace tarvis
