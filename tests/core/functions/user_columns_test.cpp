// The parameter list by its switches, the heights of its cells, and how many rows a page takes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/host_run.h"
#include "support/switch_digits.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A4 alone: title band, guide whose titles are on one line, then the first row with its 10 twips above.
constexpr float FirstRow = 630 + 427 + 10;

struct ParameterColumns : testing::Test {
  void AddParameter(const UserPrm& parameter) {
    const int index = User.UserNum++;
    User.Prm.ResizeKeeping(User.UserNum);
    User.Prm[index] = parameter;
  }
  void AddSwitch(const std::string& number, const std::vector<SwitchDigit>& digits) {
    const int index = User.SwitchNum++;
    User.Switches.ResizeKeeping(User.SwitchNum);
    User.Switches[index].No = number;
    for (std::size_t group = 0; group < 4; ++group) {
      User.Switches[index].Digit[group] = group < digits.size() ? digits[group] : Digit("0", "0", "");
    }
  }
  Document Compose() { return Report.ComposeAlone("rptUserPrm"); }
  static Rect BoxOf(const Document& document, const std::string& control, std::size_t row = 0) {
    const auto printed = PrintedOf(document, control);
    return row < printed.size() ? printed[row].Box : Rect{};
  }

  ReportRun Report;
  UserData& User = Report.Run.User;
  PrintSession& Session = Report.Run.Session;
};

TEST_F(ParameterColumns, DigitsPrintOnlyWhenNamesAndSwitchesAreBothExactlyOne) {
  struct Case {
    std::int16_t Names;
    std::int16_t Switches;
    std::size_t Blocks;
  };
  AddParameter({"Pn000", "Basic", "1", "0", ""});
  AddSwitch("Pn000", {Digit("0", "1", "Direction\r\n0:Forward")});
  for (const Case& each : {Case{1, 1, 1}, Case{1, 0, 0}, Case{1, 2, 0}, Case{1, -1, 0}, Case{0, 1, 0},
                           Case{2, 1, 0}, Case{-1, 1, 0}}) {
    Session.ShowPrmName = each.Names;
    Session.ShowPrmSwitches = each.Switches;
    const Document document = Compose();
    for (const char* control : {"shapeNibble", "txtPos0", "txtValueBit0Value", "txtValueBit0Name"}) {
      EXPECT_EQ(PrintedOf(document, control).size(), each.Blocks)
          << control << ", names " << each.Names << ", switches " << each.Switches;
    }
  }
}

TEST_F(ParameterColumns, AnythingButZeroShowsAColumn) {
  AddParameter({"Pn100", "Gain", "1", "2", "Hz"});
  using SwitchOfRun = std::int16_t PrintSession::*;
  struct Column {
    SwitchOfRun Switch;
    const char* Title;
    const char* Value;
  };
  for (const Column& column : {Column{&PrintSession::ShowPrmName, "txtTitleName", "txtValueName"},
                               Column{&PrintSession::ShowPrmUnit, "txtTitleUnit", "txtValueUnit"},
                               Column{&PrintSession::ShowPrmDefault, "txtTitleDefault", "txtValueDefault"}}) {
    for (const int shown : {1, 2, -1, 0}) {
      Session.*column.Switch = static_cast<std::int16_t>(shown);
      const Document document = Compose();
      EXPECT_EQ(PrintedOf(document, column.Title).size(), shown == 0 ? 0U : 1U) << column.Title << shown;
      EXPECT_EQ(PrintedOf(document, column.Value).size(), shown == 0 ? 0U : 1U) << column.Value << shown;
    }
    Session.*column.Switch = 1;
  }
}

TEST_F(ParameterColumns, NumberAndValueAreSideBySideWithAllColumnsOff) {
  Session.ShowPrmName = Session.ShowPrmUnit = Session.ShowPrmDefault = Session.ShowPrmSwitches = 0;
  AddParameter({"Pn100", "Gain", "1", "2", "Hz"});
  const Document document = Compose();
  const float row = FirstRow - 2;  // the title of the unit, which is 2 twips higher than the others, is gone
  EXPECT_EQ(BoxOf(document, "txtTitleNo"), (Rect{142, 630 + 142, 708, 283}));
  EXPECT_EQ(BoxOf(document, "txtTitleValue"), (Rect{850, 630 + 142, 1134, 283}));
  EXPECT_EQ(BoxOf(document, "txtValueVal"), (Rect{850, row, 1134, 285}));
  EXPECT_EQ(BoxOf(document, "txtValueNo"), (Rect{142, row, 708, 285}));
  for (const char* control : {"txtTitleName", "txtTitleUnit", "txtTitleDefault", "txtValueName",
                              "txtValueUnit", "txtValueDefault", "shapeNibble"}) {
    EXPECT_THAT(PrintedOf(document, control), IsEmpty()) << control;
  }
}

TEST_F(ParameterColumns, AnyCellOfSeveralLinesMakesItsWholeRowAsHigh) {
  using Cell = std::string UserPrm::*;
  for (const Cell text : {&UserPrm::No, &UserPrm::Name, &UserPrm::Value, &UserPrm::Default, &UserPrm::Unit}) {
    User = {};
    UserPrm parameter{"Pn1", "Gain", "1", "2", "Hz"};
    parameter.*text = "one\r\ntwo";
    AddParameter(parameter);
    AddParameter({"Pn2", "Gain", "1", "2", "Hz"});
    const Document document = Compose();
    for (const char* cell :
         {"txtValueNo", "txtValueName", "txtValueVal", "txtValueUnit", "txtValueDefault"}) {
      EXPECT_EQ(BoxOf(document, cell, 0).Top, FirstRow) << cell;
      EXPECT_EQ(BoxOf(document, cell, 0).Height, 380) << cell;
      EXPECT_EQ(BoxOf(document, cell, 1).Top, FirstRow + 380 + 10) << cell;
      EXPECT_EQ(BoxOf(document, cell, 1).Height, 285) << cell;
    }
  }
}

TEST_F(ParameterColumns, AHeadingOfTwoLinesPushesItsDescriptionAndTheNextGroupDown) {
  AddParameter({"Pn000", "Basic", "1", "0", ""});
  const std::string heading = std::string(40, 'x') + " " + std::string(60, 'x');  // wider than its 7653 twips
  AddSwitch("Pn000", {Digit("0", "1", heading + "\r\n0:Forward"), Digit("1", "1", "Method\r\n1:Speed")});
  const Document document = Compose();
  const float block = FirstRow + 285 + 142;
  EXPECT_EQ(BoxOf(document, "txtPos0"), (Rect{1134, block, 7653, 380}));
  EXPECT_EQ(BoxOf(document, "txtValueBit0Value"), (Rect{1134, block + 380, 567, 284}));
  EXPECT_EQ(BoxOf(document, "txtValueBit0Name"), (Rect{1701, block + 380, 7086, 284}));
  EXPECT_EQ(BoxOf(document, "txtPos1"), (Rect{1134, block + 380 + 284, 7653, 283}));
  EXPECT_EQ(BoxOf(document, "txtValueBit1Value"), (Rect{1134, block + 380 + 284 + 283, 567, 284}));
  EXPECT_EQ(BoxOf(document, "txtValueBit1Name"), (Rect{1701, block + 380 + 284 + 283, 7086, 284}));
  // The frame ends 142 twips below the last group, less 2.
  const float high = 285 + 142 + 380 + 284 + 283 + 284 + 142 - 2;
  EXPECT_EQ(BoxOf(document, "shapeNibble"), (Rect{142, FirstRow, 8787, high}));
  EXPECT_EQ(BoxOf(document, "txtValueNo"), (Rect{142, FirstRow, 708, high}));
  EXPECT_EQ(BoxOf(document, "txtValueName").Height, 285) << "the cells stop at the top line of the row";
}

TEST_F(ParameterColumns, EachOfFourGroupsFollowsBelowTheOneBefore) {
  AddParameter({"Pn000", "Basic", "1", "0", ""});
  AddSwitch("Pn000", {Digit("0", "1", "A\r\n0:a"), Digit("1", "1", "B\r\n1:b"), Digit("2", "1", "C\r\n2:c"),
                      Digit("3", "1", "D\r\n3:d")});
  const Document document = Compose();
  for (int group = 0; group < 4; ++group) {
    const std::string number = std::to_string(group);
    const float top = FirstRow + 285 + 142 + static_cast<float>(group) * (283 + 284);
    EXPECT_EQ(BoxOf(document, "txtPos" + number), (Rect{1134, top, 7653, 283}));
    EXPECT_EQ(BoxOf(document, "txtValueBit" + number + "Value"), (Rect{1134, top + 283, 567, 284}));
    EXPECT_EQ(BoxOf(document, "txtValueBit" + number + "Name"), (Rect{1701, top + 283, 7086, 284}));
    EXPECT_THAT(ColumnOf(document, "txtValueBit" + number + "Value"), ElementsAre(number));
  }
}

TEST_F(ParameterColumns, TheNextRowFollowsBelowTheRoomThatAFramedRowKeeps) {
  AddParameter({"Pn000", "Basic", "1", "0", ""});
  AddParameter({"Pn001", "Other", "1", "0", ""});
  AddSwitch("Pn000", {Digit("0", "1", "Direction\r\n0:Forward")});
  // The spacer below the block holds one line of 11.5 points, which makes it 257 high.
  const float room = 10 + 285 + 142 + 283 + 284 + 257;
  EXPECT_EQ(BoxOf(Compose(), "txtValueNo", 1).Top, FirstRow + room);
}

TEST_F(ParameterColumns, ABadCountKeepsTheHeadingOfTheRowBeforeOrTheDesigns) {
  AddParameter({"Pn000", "Basic", "1", "0", ""});
  AddParameter({"Pn001", "Other", "1", "0", ""});
  AddSwitch("Pn000", {Digit("0", "x", "First\r\n0:a")});
  AddSwitch("Pn001", {Digit("0", "", "Second\r\n0:b")});
  EXPECT_THAT(ColumnOf(Compose(), "txtPos0"), ElementsAre("digit 0  First", "digit digit 0  First  Second"));
}

TEST_F(ParameterColumns, SwitchesThatWereCountedButNotReadMatchNoNumber) {
  for (const char* number : {"Pn000", "Pn001", "Pn002"}) AddParameter({number, "Basic", "1", "0", ""});
  AddSwitch("Pn000", {Digit("0", "1", "Direction\r\n0:Forward")});
  User.SwitchNum = 3;
  User.Switches.ResizeKeeping(3);
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "txtValueNo").size(), 3U);
  EXPECT_EQ(PrintedOf(document, "txtPos0").size(), 1U);
}

TEST_F(ParameterColumns, ANegativeCountPrintsTitlesWithoutRows) {
  User.UserNum = -1;
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "Label1").size(), 1U);
  EXPECT_EQ(PrintedOf(document, "txtTitleNo").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtValueNo"), IsEmpty());
}

struct FirstParameterPage : HostRun {
  // How many rows are on each page of A4 below the common header.
  std::vector<int> RowsOfPages(int count) {
    std::vector<std::string> lines{"File-Spec,3", "UserNum," + std::to_string(count)};
    for (int index = 0; index < count; ++index) {
      lines.push_back("UserName,Pn" + std::to_string(index) + ",Gain");
      lines.emplace_back("UserValue,1,2,Hz");
    }
    WriteLines("User.tmp", lines);
    Run.Session.Mode = Mode::User;
    Run.Options.UserOption = {1, 1, 1, 1, 0};
    const Document document = Report.ComposeMaster();
    std::vector<int> rows;
    for (const Page& page : document.Pages) {
      rows.push_back(0);
      for (std::uint32_t index = page.FirstItem; index < page.FirstItem + page.ItemCount; ++index) {
        const Item& item = document.Items[index];
        if (item.Kind == ItemKind::Box && document.Names[item.Control] == "txtValueVal") ++rows.back();
      }
    }
    return rows;
  }
};

// 14918 twips of body hold header (855), title (630), guide (427) and 44 rows of 295.
TEST_F(FirstParameterPage, TakesFortyFourRowsBelowItsHeaders) {
  EXPECT_THAT(RowsOfPages(44), ElementsAre(44));
  EXPECT_THAT(RowsOfPages(45), ElementsAre(44, 1));
  EXPECT_THAT(RowsOfPages(46), ElementsAre(44, 2));
  EXPECT_THAT(RowsOfPages(44 + 50), ElementsAre(44, 49, 1)) << "later pages hold the guide only";
}

}  // namespace
}  // namespace tarvis
