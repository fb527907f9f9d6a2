// Rows of the parameter list that are nearly as high as a page, or higher.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/report_run.h"

namespace tarvis {
namespace {

struct TallParameter : testing::Test {
  TallParameter() {
    User.UserNum = 1;
    User.Prm.Resize(1);
    User.Prm[0] = {"Pn000", "Basic Function Selection", "0x0011", "0x0000", "-"};
  }
  // Its digit block has a meaning of so many lines.
  void GiveDigits(int lines) {
    SwitchDigit digit{"0", "1", "1", "0", "Direction\r\n0:"};
    for (int line = 0; line < lines; ++line) digit.Text += "line " + std::to_string(line) + "\r\n";
    User.SwitchNum = 1;
    User.Switches.Resize(1);
    User.Switches[0] = {"Pn000", "0x0011", "0x0000", "Basic Function Selection", {digit, {}, {}, {}}};
    for (int group = 1; group < 4; ++group) {
      User.Switches[0].Digit[static_cast<std::size_t>(group)] = {"0", "0", "", "", ""};
    }
  }
  // "page: top + height" of each piece of the frame around the row.
  static std::vector<std::string> FramesOf(const Document& document) {
    std::vector<std::string> frames;
    for (std::size_t page = 0; page < document.Pages.size(); ++page) {
      const Page& range = document.Pages[page];
      for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
        const Item& item = document.Items[index];
        if (document.Names[item.Control] != "shapeNibble") continue;
        frames.push_back(std::to_string(page + 1) + ": " + std::to_string(static_cast<int>(item.Box.Top)) +
                         "+" + std::to_string(static_cast<int>(item.Box.Height)));
      }
    }
    return frames;
  }
  static std::string Joined(const Document& document, const std::string& control) {
    std::string joined;
    for (const Printed& printed : PrintedOf(document, control)) {
      for (const std::string& text : printed.Texts) joined += text;
    }
    return joined;
  }

  ReportRun Report;
  UserData& User = Report.Run.User;
};

TEST_F(TallParameter, ALongNameBesideALongValueLosesNoLetter) {
  std::string name;
  std::string value;
  for (int letter = 0; letter < 4000; ++letter) {
    name += static_cast<char>('a' + letter % 26);
    value += static_cast<char>('0' + letter % 10);
  }
  User.Prm[0].Name = name;
  User.Prm[0].Value = value;
  for (const float body : {14918.0F, 9986.0F, 6471.0F, 4033.0F}) {
    const Document document = Report.ComposeUnderHeader("rptUserPrm", body);
    EXPECT_EQ(Joined(document, "txtValueName"), name) << body;
    EXPECT_EQ(Joined(document, "txtValueVal"), value) << body;
    for (const Item& item : document.Items) EXPECT_LE(item.Box.Bottom(), body + 1) << body;
  }
}

// The common header is 855 high, the title 630 and the guide 427. On A4 that leaves 13006 twips below all
// three, 13861 on an empty page below title and guide, and 14491 below the guide alone. A row of this kind is
// 977 high and 190 more for each line.
struct FirstRow {
  int Lines;
  std::vector<std::string> Frames;
};

struct FirstRowOnA4 : TallParameter, testing::WithParamInterface<FirstRow> {};

TEST_P(FirstRowOnA4, IsWholeWhereTitleAndGuideOrTheGuideAloneLeaveRoomAndElseIsCut) {
  GiveDigits(GetParam().Lines);
  EXPECT_EQ(FramesOf(Report.ComposeUnderHeader("rptUserPrm")), GetParam().Frames);
}

INSTANTIATE_TEST_SUITE_P(Heights, FirstRowOnA4,
                         testing::Values(FirstRow{63, {"1: 1922+12820"}}, FirstRow{64, {"2: 1067+13010"}},
                                         FirstRow{67, {"2: 1067+13580"}}, FirstRow{68, {"2: 437+13770"}},
                                         FirstRow{71, {"2: 437+14340"}},
                                         FirstRow{72, {"1: 1922+12996", "2: 427+1660"}}),
                         [](const auto& row) { return std::to_string(row.param.Lines) + "Lines"; });

}  // namespace
}  // namespace tarvis
