// The dialog "Printing Item Setting": function list, cover group, OK and Cancel.
#include "dialogs/PrintSetting.h"

#include <QLabel>
#include <QWheelEvent>

#include "dialogs/controls/addressee_grid.h"
#include "dialogs/dialog_run.h"
#include "run/failures.h"

namespace tarvis {
namespace {

using SettingDialog = DialogRun;

std::vector<std::string> Entries(const QComboBox& list) {
  std::vector<std::string> entries;
  for (int index = 0; index < list.count(); ++index) entries.push_back(list.itemText(index).toStdString());
  return entries;
}

// A dialog that is not meant to open.
template <typename Failure>
void ExpectLoadFails(PrintRun& run) {
  EXPECT_THROW(delete new PrintSetting(
                   run, {.ShowPrintPreview = [] {}, .SetHelp = [](const std::string&, std::int32_t) {}}),
               Failure);
}

struct ListCase {
  std::int16_t Edition;
  const char* Version;
  std::vector<std::string> Captions;
};

TEST_F(SettingDialog, TheFunctionListDependsOnEditionAndVersionOnly) {
  const std::vector<ListCase> cases{
      {2, "?", {"Parameters", "Tracing", "Program Table", "Zone Table", "Jog Speed Table"}},
      {4, "100", {"Parameters", "Tracing", "Real-Time Tracing"}},
      {4,
       "200",
       {"Parameters", "Tracing", "Real-Time Tracing", "Mechanical Analysis", "Dynamics Simulation"}},
      {1, "100", {"Parameters", "Parameter Wizard", "Tracing", "Real-Time Tracing"}},
      {1,
       "200",
       {"Parameters", "Parameter Wizard", "Tracing", "Real-Time Tracing", "Mechanical Analysis",
        "Dynamics Simulation"}}};
  for (const ListCase& list : cases) {
    Open(list.Edition, list.Version, "PrnSetting");
    EXPECT_EQ(Entries(Find<QComboBox>("cmbFunc")), list.Captions);
  }
}

TEST_F(SettingDialog, WalkingTheListShowsThePageOfEachEntry) {
  Open(1, "200", "PrnSetting");
  const std::vector<std::string> pages{"InfUser",      "InfTrace", "InfTrace",
                                       "InfRealTrace", "InfMecha", "InfSim"};
  for (std::size_t index = 0; index < pages.size(); ++index) {
    ChooseFunction(static_cast<int>(index));
    EXPECT_EQ(ShownPages(), pages[index]);
  }
  ChooseFunction(0);
  EXPECT_EQ(ShownPages(), "InfUser");
}

TEST_F(SettingDialog, SettingsOfTheComparingEditionShowTheOverlapPage) {
  Open(4, "200", "PrnSetting");
  ChooseFunction(4);
  EXPECT_EQ(ShownPages(), "InfSimOverlap");
}

TEST_F(SettingDialog, ASecondLoadAfterSimExShowsTheSamePage) {
  Open(4, "200", "SimEx");
  EXPECT_EQ(Run.Session.Mode, Mode::Sim);
  EXPECT_EQ(Run.Session.SimExMode, 1);
  Reopen();
  EXPECT_EQ(ShownPages(), "InfSimOverlap");
}

TEST_F(SettingDialog, UnknownHostsAreFailureOne) {
  struct Host {
    std::int16_t Edition;
    const char* Version;
    const char* Mode;
  };
  for (const Host& host : {Host{1, "300", "User"}, Host{4, "", "User"}, Host{3, "100", "User"},
                           Host{0, "200", "PrnSetting"}, Host{2, "100", "Mecha"}, Host{4, "200", "user"},
                           Host{4, "200", "IdxTbl"}, Host{1, "200", "SimEx"}, Host{1, "200", ""}}) {
    Desktop.Messages.clear();
    Run.Session.HostEdition = host.Edition;
    Run.Session.HostVersion = host.Version;
    Run.Session.Mode = ModeOf(host.Mode);
    ExpectLoadFails<RunEnded>(Run);
    ASSERT_EQ(Desktop.Messages.size(), 1u);
    EXPECT_EQ(
        Desktop.Messages[0].find(std::string("Printing Error|") + FailureMessage(Failure::WrongArgument)),
        0u);
  }
}

TEST_F(SettingDialog, AModeWithoutItsEntryIsARunTimeFailure) {
  for (const char* mode : {"Mecha", "Sim", "SimEx"}) {
    Run.Session.HostEdition = 4;
    Run.Session.HostVersion = "100";
    Run.Session.Mode = ModeOf(mode);
    ExpectLoadFails<RunTimeFailure>(Run);
  }
}

TEST_F(SettingDialog, OptionsThatNoControlCanShowAreRunTimeFailures) {
  Run.Session.HostEdition = 2;
  Run.Session.Mode = Mode::User;
  Run.Options.ColorType = 2;
  ExpectLoadFails<RunTimeFailure>(Run);
  Run.Options.ColorType = 0;
  Run.Options.Cover = 1;
  Run.Options.SelectCover = 4;
  ExpectLoadFails<RunTimeFailure>(Run);
}

TEST_F(SettingDialog, TheStepCountComesFromTheTable) {
  WriteFile("IdxIdxTbl.tmp", "File-Spec,4\r\nIndexCnt,128\r\nIndexCnt,5\r\n");
  Open(2, "", "IdxTbl");
  EXPECT_EQ(Run.Session.StepLimit, 128);
  EXPECT_EQ(Run.Session.StepStartValid, -1);
  EXPECT_EQ(Run.Session.StepEndValid, -1);
}

TEST_F(SettingDialog, ATableWithoutStepCountLeavesNone) {
  WriteFile("IdxIdxTbl.tmp", "File-Spec,4\r\n");
  Open(2, "", "IdxTbl");
  EXPECT_EQ(Run.Session.StepLimit, 0);
}

TEST_F(SettingDialog, AMissingTableIsFailureFifteen) {
  Run.Session.HostEdition = 2;
  Run.Session.Mode = Mode::IdxTbl;
  ExpectLoadFails<RunEnded>(Run);
  ASSERT_EQ(Desktop.Messages.size(), 1u);
  EXPECT_EQ(Desktop.Messages[0].find(std::string("Printing Error|") +
                                     FailureMessage(Failure::WrongProgramTableFile)),
            0u);
}

TEST_F(SettingDialog, ABadStepCountNamesFileLineAndText) {
  WriteFile("IdxIdxTbl.tmp", "File-Spec,4\r\nIndexCnt,many\r\n");
  Run.Session.HostEdition = 2;
  Run.Session.Mode = Mode::IdxTbl;
  try {
    delete new PrintSetting(Run, {});
    FAIL();
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.Place().File, "IdxIdxTbl.tmp");
    EXPECT_EQ(failure.Place().Line, 2);
    EXPECT_EQ(failure.Place().Text, "many");
  }
}

TEST_F(SettingDialog, SettingsOfTheTableEditionOfferAThousandSteps) {
  Open(2, "", "PrnSetting");
  EXPECT_EQ(Run.Session.StepLimit, 1000);
}

TEST_F(SettingDialog, AFirstStartShowsTheDefaults) {
  Open(2, "", "PrnSetting");
  EXPECT_FALSE(Check("chkCover").isChecked());
  for (const char* name : {"cmdEdit", "lblCover1", "optDrow_0", "optDrow_1", "optDrow_2", "Spread"}) {
    EXPECT_FALSE(Find(name).isEnabled()) << name;
  }
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(Find<AddresseeGrid>("Spread").SettingValue(row), "");
  EXPECT_TRUE(Find<OptionButton>("optColor_0").isChecked());
  EXPECT_EQ(Run.Options.ColorType, 0);
}

class CoverGroup : public DialogRun {
 protected:
  CoverGroup() {
    Run.Options.User[0] = {"Title 1", "Corp 1", "Drives\r\nBay 4", "Name 1", "hidden"};
    Run.Options.User[1] = {"Title 2", "Corp 2", "Sect 2", "Name 2", ""};
    Run.Options.User[2] = {"Title 3", "Corp 3", "Sect 3", "Name 3", ""};
  }
  std::string Shown() {
    const AddresseeGrid& grid = Find<AddresseeGrid>("Spread");
    return grid.SettingValue(1) + "|" + grid.SettingValue(2) + "|" + grid.SettingValue(3) + "|" +
           grid.SettingValue(4);
  }
  std::string Selected() {
    std::string selected;
    for (const char* name : {"optDrow_0", "optDrow_1", "optDrow_2"})
      selected += Find<OptionButton>(name).isChecked() ? '1' : '0';
    return selected;
  }
};

TEST_F(CoverGroup, AFileWithCoverButNoBlockOpensWithTheFirst) {
  Run.Options.Cover = 1;
  Open(2, "", "PrnSetting");
  EXPECT_EQ(Selected(), "100");
  Click(Find("cmdOK"));
  ExpectRunEnded();
  EXPECT_NE(OptionsFile().find("SelectCover,1\r\n"), std::string::npos);
}

TEST_F(CoverGroup, AFileWithTheThirdBlockOpensWithIt) {
  Run.Options.Cover = 1;
  Run.Options.SelectCover = 3;
  Open(2, "", "User");
  EXPECT_EQ(Selected(), "001");
  EXPECT_EQ(Shown(), "Title 3|Corp 3|Sect 3|Name 3");
}

TEST_F(CoverGroup, ADepartmentOfTwoLinesShowsAsOne) {
  Run.Options.Cover = 1;
  Open(2, "", "User");
  EXPECT_EQ(Shown(), "Title 1|Corp 1|Drives Bay 4|Name 1");
}

TEST_F(CoverGroup, ABlockWithoutCoverStaysInTheFileUntilTheBoxIsTouched) {
  Run.Options.SelectCover = 2;
  Open(2, "", "PrnSetting");
  EXPECT_EQ(Shown(), "|||");
  EXPECT_EQ(Selected(), "000");
  EXPECT_FALSE(Find("optDrow_1").isEnabled());
  Click(Find("cmdOK"));
  ExpectRunEnded();
  EXPECT_NE(OptionsFile().find("SelectCover,2\r\n"), std::string::npos);
  Click(Check("chkCover"));
  EXPECT_EQ(Selected(), "000");  // the stored block is kept: only block 0 is replaced by the first
  EXPECT_EQ(Run.Options.SelectCover, 2);
}

TEST_F(CoverGroup, UncheckingEmptiesTheGridAndCheckingReturnsToTheFirst) {
  Run.Options.Cover = 1;
  Run.Options.SelectCover = 3;
  Open(2, "", "User");
  Click(Check("chkCover"));
  EXPECT_EQ(Selected(), "000");
  EXPECT_EQ(Shown(), "|||");
  EXPECT_EQ(Run.Options.Cover, 0);
  EXPECT_EQ(Run.Options.SelectCover, 0);
  EXPECT_FALSE(Find("Spread").isEnabled());
  Click(Check("chkCover"));
  EXPECT_EQ(Selected(), "100");
  EXPECT_EQ(Run.Options.SelectCover, 1);
  EXPECT_EQ(Shown(), "Title 1|Corp 1|Drives Bay 4|Name 1");
}

TEST_F(CoverGroup, ChoosingABlockShowsAndStoresIt) {
  Run.Options.Cover = 1;
  Open(2, "", "User");
  Click(Find("optDrow_1"));
  EXPECT_EQ(Run.Options.SelectCover, 2);
  EXPECT_EQ(Shown(), "Title 2|Corp 2|Sect 2|Name 2");
  Key(Qt::Key_Right);
  EXPECT_EQ(Run.Options.SelectCover, 3);
  Key(Qt::Key_1, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Run.Options.SelectCover == 1; }));
}

TEST_F(CoverGroup, AnyOtherCoverNumberCountsAsChecked) {
  Run.Options.Cover = 2;
  Open(2, "", "User");
  EXPECT_TRUE(Check("chkCover").isChecked());
  EXPECT_EQ(Run.Options.Cover, 1);
}

TEST_F(CoverGroup, TheGridIsReadOnly) {
  Run.Options.Cover = 1;
  Open(2, "", "User");
  auto& grid = Find<AddresseeGrid>("Spread");
  grid.setCurrentCell(0, 1);
  grid.setFocus();
  Key(Qt::Key_F2);
  Key(Qt::Key_X);
  EXPECT_EQ(grid.SettingValue(1), "Title 1");
  EXPECT_EQ(grid.findChild<QLineEdit*>(), nullptr);
}

TEST_F(SettingDialog, TheColorChoiceIsTheIndex) {
  Open(2, "", "User");
  Click(Find("optColor_1"));
  EXPECT_EQ(Run.Options.ColorType, 1);
  Reopen();
  EXPECT_TRUE(Find<OptionButton>("optColor_1").isChecked());
  Click(Find("optColor_0"));
  EXPECT_EQ(Run.Options.ColorType, 0);
}

TEST_F(SettingDialog, ConfirmingSettingsWritesTheFileAndEndsTheRunWithoutPreview) {
  WriteFile("User.tmp", "x\r\n");
  Open(4, "100", "PrnSetting");
  Click(Find("cmdOK"));
  ExpectRunEnded();
  EXPECT_NE(OptionsFile().find("DateTime,2026/03/05 17:04:09\r\n"), std::string::npos);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(Folder() + "/User.tmp")));
  EXPECT_TRUE(PreviewDialogVisible.empty());
}

TEST_F(SettingDialog, ConfirmingAFunctionUnloadsTheDialogThenShowsThePreview) {
  Open(4, "100", "User");
  Click(Find("cmdOK"));
  ASSERT_EQ(PreviewDialogVisible.size(), 1u);
  EXPECT_FALSE(PreviewDialogVisible[0]);
  EXPECT_TRUE(OptionsFileExists());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Dialog.isNull(); }));
}

TEST_F(SettingDialog, EnterPressesOk) {
  Open(4, "100", "User");
  Find("txtTitle", "InfUser").setFocus();
  Key(Qt::Key_Return);
  EXPECT_EQ(PreviewDialogVisible.size(), 1u);
}

TEST_F(SettingDialog, TheMnemonicPressesOk) {
  Open(4, "100", "User");
  Key(Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return PreviewDialogVisible.size() == 1; }));
}

TEST_F(SettingDialog, AMnemonicCountsBeforeTheKeyThatFollowsAtOnce) {
  Open(1, "200", "Trace");
  Key(Qt::Key_C, Qt::AltModifier);
  Key(Qt::Key_A, Qt::AltModifier);
  Key(Qt::Key_Return);
  EXPECT_THAT(OptionsFile(), testing::HasSubstr("\nColorType,1\r"));
  EXPECT_THAT(OptionsFile(), testing::HasSubstr("\nCover,1\r"));
}

TEST_F(SettingDialog, AnOptionsFileThatCantBeWrittenStopsNobody) {
  Open(4, "100", "User");
  Run.Session.SystemFolder = Folder() + "\\missing\\";
  Click(Find("cmdOK"));
  EXPECT_EQ(PreviewDialogVisible.size(), 1u);
  EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(SettingDialog, CancelEndsTheRunAndLeavesTheOptionsFile) {
  WriteFile("PrintOption.ToT", "as it was");
  WriteFile("User.tmp", "x\r\n");
  Open(4, "100", "User");
  Click(Find("optColor_1"));
  Click(Find("cmdCancel"));
  ExpectRunEnded();
  EXPECT_EQ(OptionsFile(), "as it was");
  EXPECT_FALSE(QFile::exists(QString::fromStdString(Folder() + "/User.tmp")));
}

TEST_F(SettingDialog, EscapeAndTheCloseBoxAreCancel) {
  Open(4, "100", "User");
  Key(Qt::Key_Escape);
  ExpectRunEnded();
  Reopen();
  Dialog->close();
  ExpectRunEnded();
  EXPECT_FALSE(OptionsFileExists());
}

TEST_F(SettingDialog, TheHelpFileIsSetOnlyIfItExists) {
  Run.Session.HelpContextId = 4711;
  Run.Session.HelpFile = Folder() + "\\help.html";
  Open(4, "100", "User");
  EXPECT_EQ(Help, "");
  WriteFile("help.html", "<html>");
  Reopen();
  EXPECT_EQ(Help, Folder() + "\\help.html#4711");
}

TEST_F(SettingDialog, TheWheelLeavesADisabledListAlone) {
  Open(4, "100", "Trace");
  auto& list = Find<QComboBox>("cmbFunc");
  QWheelEvent wheel(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&list, &wheel);
  EXPECT_EQ(list.currentIndex(), 1);
  EXPECT_EQ(ShownPages(), "InfTrace");
}

TEST_F(SettingDialog, WhatTheUserConfirmedIsShownAgain) {
  Open(4, "100", "User");
  Click(Check("chkHeader_1", "InfUser"));
  Click(Check("chkCover"));
  Click(Find("optDrow_2"));
  Click(Find("cmdOK"));
  Reopen();
  EXPECT_FALSE(Check("chkHeader_1", "InfUser").isChecked());
  EXPECT_TRUE(Find<OptionButton>("optDrow_2").isChecked());
}

}  // namespace
}  // namespace tarvis
