// The switch list: rows of digits beside and below one another.
#include "functions/user/rptUserSwitch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/report_run.h"
#include "support/structure_text.h"
#include "support/switch_digits.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr float Row = 630 + 515;  // title band, guide whose "Digit Position" takes two lines

struct SwitchList : testing::Test {
  void Add(const std::string& number, const std::array<SwitchDigit, 4>& digits) {
    const int index = User.SwitchNum++;
    User.Switches.ResizeKeeping(User.SwitchNum);
    User.Switches[index] = {number, "0011", "0010", "Basic function", digits};
  }
  Document Compose() { return Report.ComposeAlone("rptUserSwitch"); }

  ReportRun Report;
  UserData& User = Report.Run.User;
  PrintSession& Session = Report.Run.Session;
};

Rect BoxOf(const Document& document, const std::string& control, std::size_t index = 0) {
  const auto printed = PrintedOf(document, control);
  return index < printed.size() ? printed[index].Box : Rect{};
}

TEST_F(SwitchList, IsReachedByItsNameAndEntersTheContentsAtTopLevel) {
  Add("Pn000", {Digit("0", "1", "Direction"), NoDigit, NoDigit, NoDigit});
  Session.TocGroup = "Overlapping target";
  const Document document = Compose();
  ASSERT_EQ(document.Contents.size(), 1U);
  EXPECT_EQ(document.Contents[0].Text, "Switches List");
}

TEST_F(SwitchList, TwoDigitGroupsMakeAParameterLineAndTwoRows) {
  Add("Pn000", {Digit("0", "1", "Direction"), Digit("2", "2", "Method"), NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_EQ(BoxOf(document, "txtValueNo"), (Rect{135, Row + 8, 855, 285 + 2 * 570}));
  EXPECT_EQ(BoxOf(document, "txtPos0"), (Rect{990, Row + 293, 855, 570}));
  EXPECT_EQ(BoxOf(document, "txtPos1"), (Rect{990, Row + 293 + 570, 855, 570}));
  EXPECT_THAT(PrintedOf(document, "txtPos1")[0].Texts, ElementsAre("2, 3"));
  EXPECT_THAT(PrintedOf(document, "txtPos2"), IsEmpty());
}

TEST_F(SwitchList, ReadsAsAPage) {
  Add("Pn000",
      {Digit("0", "1", "Direction\r\n1:Clockwise"), Digit("1", "2", "Control Method"), NoDigit, NoDigit});
  Add("Pn001", {NoDigit, NoDigit, NoDigit, NoDigit});
  ExpectGolden("user_switch", Dump(Compose()));
  ExpectGolden("user_switch_structure", StructureOf(Compose()));
}

TEST_F(SwitchList, PrintsDescriptionsWhole) {
  Add("Pn000", {Digit("0", "1", "Direction\r\n0:Forward"), NoDigit, NoDigit, NoDigit});
  EXPECT_THAT(PrintedOf(Compose(), "txtValueBit0Name")[0].Texts, ElementsAre("Direction", "0:Forward"));
}

TEST_F(SwitchList, ALongDescriptionRunsIntoTheRowBelow) {
  std::string text;
  for (int line = 0; line < 5; ++line) text += "line\r\n";
  Add("Pn000", {Digit("0", "1", text), Digit("1", "1", "Method"), NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_EQ(BoxOf(document, "txtValueBit0Name").Height, 950);
  EXPECT_EQ(BoxOf(document, "txtPos0").Height, 950) << "the row's cells are as high as its description";
  EXPECT_EQ(BoxOf(document, "txtPos1").Top, Row + 293 + 570) << "the rows below don't move";
  EXPECT_EQ(BoxOf(document, "txtValueNo").Height, 285 + 950 + 570);
}

TEST_F(SwitchList, TheRowsStartAtTheTopAndTheColumnsCloseUpWithoutNames) {
  Session.ShowPrmName = 0;
  Add("Pn000", {Digit("0", "1", "a description so long that it would take several lines if it were shown"),
                NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_THAT(PrintedOf(document, "txtValueName"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtValueBit0Name"), IsEmpty());
  EXPECT_EQ(BoxOf(document, "txtPos0"), (Rect{990, Row + 8, 855, 570}));
  EXPECT_EQ(BoxOf(document, "txtTitleValue").Left, 1845);
  EXPECT_EQ(BoxOf(document, "txtValueBit0Val").Left, 1845);
  EXPECT_EQ(BoxOf(document, "txtValueBit0Default").Left, 2700);
  EXPECT_EQ(BoxOf(document, "txtValueNo").Height, 570);
  EXPECT_EQ(BoxOf(document, "txtValueVal").Top, Row + 135) << "covered by row 0, which is drawn after it";
}

TEST_F(SwitchList, TheCoveredValuesAreNotReadWithoutNames) {
  Session.ShowPrmName = 0;
  Add("Pn000", {Digit("0", "1", "Direction"), Digit("2", "2", "Method"), NoDigit, NoDigit});
  const std::string read = StructureOf(Compose());
  EXPECT_EQ(read.substr(read.find("rptUserSwitch.Detail")),
            "rptUserSwitch.Detail in table 0\n"
            "  cell of 2 rows 'Pn000' cell '0' cell '1' cell '0'\n"
            "  cell '2, 3' cell '1' cell '0'\n")
      << read;
}

TEST_F(SwitchList, OneEmptyRowStillPrintsWithoutNamesAndDigits) {
  Session.ShowPrmName = 0;
  Add("Pn000", {NoDigit, NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "txtPos0").size(), 1U);
  EXPECT_EQ(BoxOf(document, "txtValueNo").Height, 570);
}

TEST_F(SwitchList, ANameSwitchOfTwoShowsNamesButAShortNumberBox) {
  Session.ShowPrmName = 2;
  Add("Pn000", {Digit("0", "1", "Direction"), NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "txtValueName").size(), 1U);
  EXPECT_EQ(BoxOf(document, "txtValueNo").Height, 570);
}

TEST_F(SwitchList, HidesTheDefaults) {
  Session.ShowPrmDefault = 0;
  Add("Pn000", {Digit("0", "1", "Direction"), Digit("1", "1", "Method"), NoDigit, NoDigit});
  const Document document = Compose();
  for (const char* control :
       {"txtTitleDefault", "txtValueDefault", "txtValueBit0Default", "txtValueBit1Default"}) {
    EXPECT_THAT(PrintedOf(document, control), IsEmpty()) << control;
  }
}

TEST_F(SwitchList, OldFilesShowFourGroupsWithTheirDesignNumbers) {
  Report.Run.Header.FileSpec = 2;
  Add("Pn000", {NoDigit, NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_THAT(PrintedOf(document, "txtPos3")[0].Texts, ElementsAre("3"));
}

TEST_F(SwitchList, ABadNumberKeepsTheTextOfTheRowBefore) {
  Add("Pn000", {Digit("4", "1", "Direction"), NoDigit, NoDigit, NoDigit});
  Add("Pn001", {Digit("x", "1", "Direction"), NoDigit, NoDigit, NoDigit});
  const auto positions = PrintedOf(Compose(), "txtPos0");
  ASSERT_EQ(positions.size(), 2U);
  EXPECT_THAT(positions[1].Texts, ElementsAre("4"));
}

TEST_F(SwitchList, TheNumberBoxOfALaterRowDependsOnThatRowOnly) {
  Add("Pn000", {Digit("0", "1", "a"), Digit("1", "1", "b"), Digit("2", "1", "c"), Digit("3", "1", "d")});
  Add("Pn001", {Digit("0", "1", "a"), NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_EQ(BoxOf(document, "txtValueNo", 0).Height, 285 + 4 * 570);
  EXPECT_EQ(BoxOf(document, "txtValueNo", 1).Height, 285 + 570);
}

TEST_F(SwitchList, EachOfFourGroupsHasItsOwnRow) {
  Add("Pn000", {});
  for (std::size_t group = 0; group < 4; ++group) {
    const std::string number = std::to_string(group);
    User.Switches[0].Digit[group] = {number, "1", "value " + number, "default " + number, "text " + number};
  }
  const Document document = Compose();
  for (int group = 0; group < 4; ++group) {
    const std::string number = std::to_string(group);
    const float top = Row + 293 + static_cast<float>(group) * 570;
    EXPECT_EQ(BoxOf(document, "txtPos" + number), (Rect{990, top, 855, 570}));
    EXPECT_EQ(BoxOf(document, "txtValueBit" + number + "Name"), (Rect{1845, top, 5385, 570}));
    EXPECT_EQ(BoxOf(document, "txtValueBit" + number + "Val"), (Rect{7230, top, 855, 570}));
    EXPECT_EQ(BoxOf(document, "txtValueBit" + number + "Default"), (Rect{8085, top, 855, 570}));
    EXPECT_THAT(ColumnOf(document, "txtPos" + number), ElementsAre(number));
    EXPECT_THAT(ColumnOf(document, "txtValueBit" + number + "Name"), ElementsAre("text " + number));
    EXPECT_THAT(ColumnOf(document, "txtValueBit" + number + "Val"), ElementsAre("value " + number));
    EXPECT_THAT(ColumnOf(document, "txtValueBit" + number + "Default"), ElementsAre("default " + number));
  }
  EXPECT_EQ(BoxOf(document, "txtValueName"), (Rect{990, Row + 8, 6240, 285}));
  EXPECT_EQ(BoxOf(document, "txtValueVal"), (Rect{7230, Row + 8, 855, 285}));
  EXPECT_EQ(BoxOf(document, "txtValueDefault"), (Rect{8085, Row + 8, 855, 285}));
  EXPECT_THAT(ColumnOf(document, "txtValueVal"), ElementsAre("0011"));
  EXPECT_THAT(ColumnOf(document, "txtValueDefault"), ElementsAre("0010"));
  EXPECT_THAT(ColumnOf(document, "txtValueName"), ElementsAre("Basic function"));
}

TEST_F(SwitchList, EachRowFollowsBelowTheOneBeforeWithoutNames) {
  Session.ShowPrmName = 0;
  Add("Pn000", {Digit("0", "1", ""), Digit("1", "1", ""), Digit("2", "1", ""), Digit("3", "1", "")});
  const Document document = Compose();
  for (int group = 0; group < 4; ++group) {
    const std::string number = std::to_string(group);
    const float top = Row + 8 + static_cast<float>(group) * 570;
    EXPECT_EQ(BoxOf(document, "txtPos" + number), (Rect{990, top, 855, 570}));
    EXPECT_EQ(BoxOf(document, "txtValueBit" + number + "Val"), (Rect{1845, top, 855, 570}));
    EXPECT_EQ(BoxOf(document, "txtValueBit" + number + "Default"), (Rect{2700, top, 855, 570}));
  }
  EXPECT_EQ(BoxOf(document, "txtTitleDefault").Left, 2700);
  EXPECT_EQ(BoxOf(document, "txtValueNo"), (Rect{135, Row + 8, 855, 4 * 570}));
}

TEST_F(SwitchList, AnythingButZeroShowsNamesAndDefaults) {
  Add("Pn000", {Digit("0", "1", "Direction"), Digit("1", "1", "Method"), NoDigit, NoDigit});
  for (const int shown : {2, -1}) {
    Session.ShowPrmName = Session.ShowPrmDefault = static_cast<std::int16_t>(shown);
    const Document document = Compose();
    for (const char* control : {"txtTitleName", "txtValueName", "txtValueBit0Name", "txtValueBit1Name"}) {
      EXPECT_EQ(PrintedOf(document, control).size(), 1U) << control << shown;
    }
    for (const char* control :
         {"txtTitleDefault", "txtValueDefault", "txtValueBit0Default", "txtValueBit1Default"}) {
      EXPECT_EQ(BoxOf(document, control).Left, 8085) << control << shown;
    }
  }
}

TEST_F(SwitchList, RepeatsItsGuideOnEachPage) {
  for (int index = 0; index < 30; ++index) {
    Add("Pn" + std::to_string(index), {Digit("0", "1", "Direction"), NoDigit, NoDigit, NoDigit});
  }
  const Document document = Compose();
  EXPECT_EQ(document.Pages.size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtTitleNo").size(), 2U);
  EXPECT_EQ(PrintedOf(document, "Label1").size(), 1U);
  EXPECT_EQ(PrintedOf(document, "txtValueNo").size(), 30U);
}

TEST_F(SwitchList, ANegativeCountPrintsTitlesWithoutRows) {
  User.SwitchNum = -1;
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "txtTitleNo").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtValueNo"), IsEmpty());
}

TEST_F(SwitchList, PrintsItsTitleOnlyWithoutSwitches) {
  User.Switches.Resize(0);
  const Document document = Compose();
  EXPECT_EQ(document.Contents.size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtTitleNo"), IsEmpty());
}

}  // namespace
}  // namespace tarvis
