// The parameter list: which parameters it prints, and how its rows grow.
#include "functions/user/rptUserPrm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/report_run.h"
#include "support/switch_digits.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void AddParameter(UserData& user, const std::string& number, const std::string& name = "Speed loop gain") {
  const int index = user.UserNum++;
  user.Prm.ResizeKeeping(user.UserNum);
  user.Prm[index] = {number, name, "40.0", "40.0", "Hz"};
}

void AddSwitch(UserData& user, const std::string& number, const std::array<SwitchDigit, 4>& digits) {
  const int index = user.SwitchNum++;
  user.Switches.ResizeKeeping(user.SwitchNum);
  user.Switches[index] = {number, "0011", "0011", "Basic function", digits};
}

const SwitchDigit Direction = Digit("0", "1", "Direction\r\n0:Counterclockwise");
const SwitchDigit Method = Digit("1", "2", "Control method\r\n1:Position: pulse train");

std::vector<float> Lefts(const Document& document, std::initializer_list<const char*> controls) {
  std::vector<float> lefts;
  for (const char* control : controls) {
    const auto printed = PrintedOf(document, control);
    lefts.push_back(printed.empty() ? -1 : printed[0].Box.Left);
  }
  return lefts;
}

struct ParameterList : testing::Test {
  ReportRun Report;
  UserData& User = Report.Run.User;
  PrintSession& Session = Report.Run.Session;

  Document Compose(float bodyHeight = 14918) { return Report.ComposeAlone("rptUserPrm", bodyHeight); }
  Printed First(const std::string& control) {
    const auto printed = PrintedOf(Compose(), control);
    return printed.empty() ? Printed{} : printed[0];
  }
};

TEST_F(ParameterList, PlacesAllColumns) {
  AddParameter(User, "Pn100");
  const Document document = Compose();
  EXPECT_THAT(
      Lefts(document, {"txtTitleNo", "txtTitleName", "txtTitleValue", "txtTitleUnit", "txtTitleDefault"}),
      ElementsAre(142, 850, 4677, 5811, 7795));
  EXPECT_THAT(
      Lefts(document, {"txtValueNo", "txtValueName", "txtValueVal", "txtValueUnit", "txtValueDefault"}),
      ElementsAre(142, 850, 4677, 5811, 7795));
}

TEST_F(ParameterList, ClosesUpTheColumnsWithoutNames) {
  Session.ShowPrmName = 0;
  AddParameter(User, "Pn100",
               "a name so long that it would take three lines of the column if only it were shown at all "
               "which it is not, since names are off");
  AddSwitch(User, "Pn100", {Direction, NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_THAT(Lefts(document, {"txtTitleName", "txtTitleValue", "txtTitleUnit", "txtTitleDefault"}),
              ElementsAre(-1, 850, 1984, 3968));
  EXPECT_THAT(Lefts(document, {"txtValueName", "txtValueVal", "txtValueUnit", "txtValueDefault"}),
              ElementsAre(-1, 850, 1984, 3968));
  EXPECT_THAT(PrintedOf(document, "txtPos0"), IsEmpty());
  EXPECT_EQ(PrintedOf(document, "txtValueVal")[0].Box.Height, 285);
}

TEST_F(ParameterList, DefaultTakesThePlaceOfAHiddenUnit) {
  Session.ShowPrmUnit = 0;
  AddParameter(User, "Pn100");
  EXPECT_THAT(Lefts(Compose(), {"txtTitleUnit", "txtTitleDefault", "txtValueDefault"}),
              ElementsAre(-1, 5811, 5811));
}

TEST_F(ParameterList, NarrowsTheDigitBlockByHiddenColumns) {
  AddParameter(User, "Pn000");
  AddSwitch(User, "Pn000", {Direction, NoDigit, NoDigit, NoDigit});
  Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "shapeNibble")[0].Box.Width, 708 + 3827 + 1134 + 1984 + 1134);
  EXPECT_EQ(PrintedOf(document, "txtPos0")[0].Box.Width, 7653);
  Session.ShowPrmUnit = 0;
  document = Compose();
  EXPECT_EQ(PrintedOf(document, "shapeNibble")[0].Box.Width, 8787 - 1984);
  EXPECT_EQ(PrintedOf(document, "txtPos0")[0].Box.Width, 7653 - 1984);
  EXPECT_EQ(PrintedOf(document, "txtValueBit0Name")[0].Box.Width, 7086 - 1984);
  Session.ShowPrmDefault = 0;
  document = Compose();
  EXPECT_EQ(PrintedOf(document, "shapeNibble")[0].Box.Width, 8787 - 1984 - 1134);
  EXPECT_EQ(PrintedOf(document, "txtValueBit0Value")[0].Box.Width, 567);
}

TEST_F(ParameterList, DigitsAskForExactlyOneAndColumnsForAnythingButZero) {
  Session.ShowPrmName = 2;
  Session.ShowPrmUnit = -1;
  AddParameter(User, "Pn000");
  AddSwitch(User, "Pn000", {Direction, NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_THAT(Lefts(document, {"txtValueName", "txtValueUnit"}), ElementsAre(850, 5811));
  EXPECT_THAT(PrintedOf(document, "txtPos0"), IsEmpty());
}

TEST_F(ParameterList, APlainRowIs295TwipsApart) {
  AddParameter(User, "Pn100");
  AddParameter(User, "Pn101");
  const auto boxes = PrintedOf(Compose(), "txtValueNo");
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0].Box, (Rect{142, 630 + 427 + 10, 708, 285}));
  EXPECT_EQ(boxes[1].Box.Top - boxes[0].Box.Top, 295);
}

TEST_F(ParameterList, HeadsADigitGroupWithItsPositionsAndTheFirstLineOfItsText) {
  AddParameter(User, "Pn000");
  AddSwitch(User, "Pn000", {Digit("0", "2", "Direction\r\n0:Counterclockwise"), NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_THAT(PrintedOf(document, "txtPos0")[0].Texts, ElementsAre("digit 0, 1  Direction"));
  EXPECT_THAT(PrintedOf(document, "txtValueBit0Value")[0].Texts, ElementsAre("0"));
  EXPECT_THAT(PrintedOf(document, "txtValueBit0Name")[0].Texts, ElementsAre("Counterclockwise"));
}

TEST_F(ParameterList, StacksTheDigitBlockAndFramesIt) {
  AddParameter(User, "Pn000");
  AddParameter(User, "Pn001");
  AddSwitch(User, "Pn000", {Direction, Method, NoDigit, NoDigit});
  const Document document = Compose();
  const float row = 630 + 427;
  const auto frames = PrintedOf(document, "shapeNibble");
  ASSERT_EQ(frames.size(), 1U) << "a plain row has no frame";
  EXPECT_EQ(frames[0].Box.Top, row + 10);
  EXPECT_EQ(frames[0].Box.Height, 1701);
  const auto numbers = PrintedOf(document, "txtValueNo");
  EXPECT_EQ(numbers[0].Box.Height, 1701);
  EXPECT_EQ(numbers[1].Box.Height, 285) << "the row after a framed row is a plain row again";
  EXPECT_EQ(numbers[1].Box.Top, row + 1828 + 10) << "the grown spacer leaves its room below the frame";
  EXPECT_EQ(PrintedOf(document, "txtPos0")[0].Box.Top, row + 10 + 285 + 142);
  EXPECT_EQ(PrintedOf(document, "txtPos1")[0].Box.Top, row + 10 + 285 + 142 + 283 + 284);
  EXPECT_THAT(PrintedOf(document, "spaceNibbleBottom"), IsEmpty()) << "the spacers are room only";
}

TEST_F(ParameterList, AColonInTheMeaningIsKept) {
  AddParameter(User, "Pn000");
  AddSwitch(User, "Pn000", {NoDigit, NoDigit, NoDigit, NoDigit});
  User.Switches[0].Digit[0] = Method;
  EXPECT_THAT(First("txtValueBit0Name").Texts, ElementsAre("Position: pulse train"));
}

TEST_F(ParameterList, CutsDescriptionsAtTheirFirstLineBreakAndColon) {
  struct Case {
    const char* Text;
    const char* Heading;
    std::vector<std::string> Value;
    std::vector<std::string> Meaning;
  };
  const std::vector<Case> cases{
      {"no line break: lost", "digit 0  ", {}, {}},
      {"Heading\r\nno colon", "digit 0  Heading", {}, {}},
      {"Heading\r\nends in colon:", "digit 0  Heading", {}, {}},
      {"Colon: in heading\r\n1:yes", "digit 0  Colon: in heading", {"1"}, {"yes"}},
      {"\r\n1:yes", "digit 0  ", {"1"}, {"yes"}},
      {"Heading\r\n:meaning", "digit 0  Heading", {}, {"meaning"}},
  };
  AddParameter(User, "Pn000");
  AddSwitch(User, "Pn000", {NoDigit, NoDigit, NoDigit, NoDigit});
  for (const Case& each : cases) {
    User.Switches[0].Digit[0] = Digit("0", "1", each.Text);
    const Document document = Compose();
    EXPECT_THAT(PrintedOf(document, "txtPos0")[0].Texts, ElementsAre(each.Heading)) << each.Text;
    EXPECT_EQ(PrintedOf(document, "txtValueBit0Value")[0].Texts, each.Value) << each.Text;
    EXPECT_EQ(PrintedOf(document, "txtValueBit0Name")[0].Texts, each.Meaning) << each.Text;
  }
}

TEST_F(ParameterList, ASwitchWithoutDigitsPrintsAPlainRowAndLetsTheNextMatch) {
  AddParameter(User, "Pn000");
  AddParameter(User, "Pn001");
  AddSwitch(User, "Pn000", {NoDigit, NoDigit, NoDigit, NoDigit});
  AddSwitch(User, "Pn001", {Direction, NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "txtValueNo")[0].Box.Height, 285);
  EXPECT_EQ(PrintedOf(document, "txtPos0").size(), 1U);
}

TEST_F(ParameterList, CountsGroupsFromTheFront) {
  AddParameter(User, "Pn000");
  AddSwitch(User, "Pn000", {Direction, NoDigit, Method, NoDigit});
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "txtPos0").size(), 1U);
  ASSERT_EQ(PrintedOf(document, "txtPos1").size(), 1U)
      << "two groups are counted, so the empty second one shows";
  EXPECT_THAT(PrintedOf(document, "txtPos1")[0].Texts, IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtPos2"), IsEmpty());
}

TEST_F(ParameterList, ComparesNumbersWithoutRegardToCaseButWithBlanks) {
  AddParameter(User, "PN00A");
  AddSwitch(User, "pn00a", {Direction, NoDigit, NoDigit, NoDigit});
  EXPECT_EQ(PrintedOf(Compose(), "txtPos0").size(), 1U);
  User.Switches[0].No = " pn00a";
  EXPECT_THAT(PrintedOf(Compose(), "txtPos0"), IsEmpty());
}

// Required: numbers are texts, and two empty ones are the same text.
TEST_F(ParameterList, AnEmptySwitchBelongsToAnEmptyParameter) {
  AddParameter(User, "Pn000");
  AddParameter(User, "");
  AddSwitch(User, "", {Direction, NoDigit, NoDigit, NoDigit});
  EXPECT_EQ(PrintedOf(Compose(), "txtPos0").size(), 1U);
}

TEST_F(ParameterList, AnOrphanSwitchBlocksAllThatFollowIt) {
  AddParameter(User, "Pn000");
  AddParameter(User, "Pn001");
  AddSwitch(User, "Pn999", {Direction, NoDigit, NoDigit, NoDigit});
  AddSwitch(User, "Pn000", {Direction, NoDigit, NoDigit, NoDigit});
  EXPECT_THAT(PrintedOf(Compose(), "txtPos0"), IsEmpty());
}

TEST_F(ParameterList, ABadFirstSkipsItsCallOnlyAndKeepsTheHeadingOfTheRowBefore) {
  AddParameter(User, "Pn000");
  AddParameter(User, "Pn001");
  AddSwitch(User, "Pn000", {Direction, NoDigit, NoDigit, NoDigit});
  AddSwitch(User, "Pn001", {Digit("x", "1", "Next\r\n1:one"), Method, NoDigit, NoDigit});
  const auto headings = PrintedOf(Compose(), "txtPos0");
  ASSERT_EQ(headings.size(), 2U);
  EXPECT_THAT(headings[1].Texts, ElementsAre("digit digit 0  Direction  Next"));
  EXPECT_EQ(PrintedOf(Compose(), "txtPos1").size(), 1U) << "the bad group is counted by its old text";
}

TEST_F(ParameterList, APositionAboveTheRangeLeavesAPartOfTheList) {
  AddParameter(User, "Pn000");
  AddSwitch(User, "Pn000", {Digit("32766", "4", "Heading\r\n1:one"), NoDigit, NoDigit, NoDigit});
  EXPECT_THAT(First("txtPos0").Texts, ElementsAre("digit 32766, 32767,   Heading"));
}

TEST_F(ParameterList, OldFilesShowFourGroupsWhoseHeadingsBuildUpUntilTheFirstMiss) {
  Report.Run.Header.FileSpec = 2;
  for (const char* number : {"Pn000", "Pn001", "Pn002", "Pn003"}) AddParameter(User, number);
  for (const char* number : {"Pn000", "Pn001", "Pn003"}) {
    AddSwitch(User, number, {Direction, NoDigit, NoDigit, NoDigit});
  }
  const auto headings = PrintedOf(Compose(), "txtPos0");
  ASSERT_EQ(headings.size(), 3U);
  EXPECT_THAT(headings[0].Texts, ElementsAre("digit 0  Direction"));
  EXPECT_THAT(headings[1].Texts, ElementsAre("digit digit 0  Direction  Direction"));
  EXPECT_THAT(headings[2].Texts, IsEmpty()) << "the miss emptied them, and empty groups print";
  EXPECT_EQ(PrintedOf(Compose(), "txtPos3").size(), 3U);
}

TEST_F(ParameterList, ANameOfThreeLinesMakesAllCellsOfTheRowAsHigh) {
  AddParameter(User, "Pn100",
               "A parameter name that is long enough to take three lines of its column, because it tells "
               "everything about itself at once");
  AddSwitch(User, "Pn100", {Direction, NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  ASSERT_EQ(PrintedOf(document, "txtValueName")[0].Texts.size(), 3U);
  for (const char* cell : {"txtValueName", "txtValueVal", "txtValueUnit", "txtValueDefault"}) {
    EXPECT_EQ(PrintedOf(document, cell)[0].Box.Height, 570) << cell;
  }
  EXPECT_EQ(PrintedOf(document, "txtPos0")[0].Box.Top, 630 + 427 + 10 + 570 + 142);
}

TEST_F(ParameterList, AMeaningOfSeveralLinesMakesItsValueCellAsHigh) {
  AddParameter(User, "Pn000");
  std::string meaning;
  for (int index = 0; index < 30; ++index) meaning += "counterclockwise ";
  AddSwitch(User, "Pn000", {Digit("0", "1", "Direction\r\n0:" + meaning), NoDigit, NoDigit, NoDigit});
  const Document document = Compose();
  const float height = PrintedOf(document, "txtValueBit0Name")[0].Box.Height;
  EXPECT_GT(height, 380);
  EXPECT_EQ(PrintedOf(document, "txtValueBit0Value")[0].Box.Height, height);
}

TEST_F(ParameterList, PrintsItsTitleOnlyWithoutParameters) {
  AddSwitch(User, "Pn000", {Direction, NoDigit, NoDigit, NoDigit});
  AddSwitch(User, "Pn001", {Direction, NoDigit, NoDigit, NoDigit});
  User.Prm.Resize(0);
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "Label1").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtTitleNo"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtValueNo"), IsEmpty());
  ASSERT_EQ(document.Contents.size(), 1U);
}

TEST_F(ParameterList, ACountAboveTheRowsReadPrintsWithoutDigits) {
  AddParameter(User, "Pn000");
  User.SwitchNum = 5;
  EXPECT_NO_THROW(Compose());
}

TEST_F(ParameterList, RepeatsTheGuideOnEachPage) {
  for (int index = 0; index < 100; ++index) AddParameter(User, "Pn" + std::to_string(index));
  const Document document = Compose();
  EXPECT_EQ(document.Pages.size(), 3U);
  EXPECT_EQ(PrintedOf(document, "txtTitleNo").size(), 3U);
  EXPECT_EQ(PrintedOf(document, "Label1").size(), 1U);
}

TEST_F(ParameterList, ARowTallerThanAPageIsCutBetweenItsLines) {
  AddParameter(User, "Pn000");
  std::string meaning;
  for (int index = 0; index < 400; ++index) meaning += "counterclockwise ";
  AddSwitch(User, "Pn000", {Digit("0", "1", "Direction\r\n0:" + meaning), NoDigit, NoDigit, NoDigit});
  const Document document = Compose(4000);
  EXPECT_GT(document.Pages.size(), 3U);
  for (const Item& item : document.Items) EXPECT_LE(item.Box.Bottom(), 4001);
}

TEST_F(ParameterList, EntersTheContentsBelowTheGroupOfItsDataSet) {
  AddParameter(User, "Pn000");
  EXPECT_EQ(Compose().Contents.at(0).Text, "Parameters List");
  Session.TocGroup = "Overlapping target";
  const Document grouped = Compose();
  ASSERT_EQ(grouped.Contents.size(), 2U);
  EXPECT_EQ(grouped.Contents[0].Text, "Overlapping target");
  EXPECT_EQ(grouped.Contents[1].Text, "Parameters List");
}

}  // namespace
}  // namespace tarvis
