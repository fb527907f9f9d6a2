// The cover letter, control by control.
#include "report/rptCover.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/report_run.h"
#include "support/temp_folder.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

TEST(JoinLine, PutsAnAdditionOnALineOfItsOwn) {
  EXPECT_EQ(JoinLine("a", ""), "a");
  EXPECT_EQ(JoinLine("", "b"), "b");
  EXPECT_EQ(JoinLine("a", "b"), "a\r\nb");
}

TEST(LongestLineBytes, CountsBytesOfTheCodePageUpToAnEmptyLine) {
  EXPECT_EQ(LongestLineBytes(CodePage(1252), ""), 0);
  EXPECT_EQ(LongestLineBytes(CodePage(1252), "ab\r\nabcd\r\nabc"), 4);
  EXPECT_EQ(LongestLineBytes(CodePage(1252), "ab\r\n\r\nabcdef"), 2) << "an empty line ends the measuring";
  EXPECT_EQ(LongestLineBytes(CodePage(932), "\xE6\xBC\xA2\xE5\xAD\x97"), 4);
}

struct Cover : testing::Test {
  Cover() {
    Options.SelectCover = 1;
    Options.User[0] = {"Trial run", "Buyer Ltd.", "Purchase", "Ms. Example", "1 Street\r\nTown"};
    Options.DrowName = "Mr. Sender";
    Run.Session.ActiveHeader.PrintDate = 1;
  }
  Document Compose() {
    rptCover cover(Report.Context());
    Run.Session.MasterReport = &cover;
    return tarvis::Compose(cover, {10000, 14918, 0, 0, 0, 0}, ArialMeasurer());
  }
  Lines TextsOf(const std::string& control) {
    const auto printed = PrintedOf(Compose(), control);
    return printed.empty() ? Lines{} : printed[0].Texts;
  }
  // Left edge of the sender block, found by its text, which has no inset.
  float SenderLeft() {
    const Document document = Compose();
    for (const Item& item : document.Items) {
      if (document.Names[item.Control] == "txtDrowAria") return item.Box.Left;
    }
    return -1;
  }

  ReportRun Report;
  PrintRun& Run = Report.Run;
  PrintOptions& Options = Run.Options;
};

TEST_F(Cover, ShowsDateAddresseeSubjectSalutationAndSignature) {
  EXPECT_THAT(TextsOf("txtDate"), ElementsAre("March 05, 2026"));
  EXPECT_THAT(TextsOf("txtUserAria"),
              ElementsAre("Ms. Example", "Purchase", "Buyer Ltd.", "address:", "1 Street", "Town"));
  EXPECT_THAT(TextsOf("txtUserTitle"), ElementsAre("Trial run"));
  EXPECT_THAT(TextsOf("txtUserDear"), ElementsAre("Ms. Example"));
  EXPECT_THAT(TextsOf("txtDrowName"), ElementsAre("Mr. Sender"));
}

TEST_F(Cover, TheSenderBlockWrapsAtThePapersEdge) {
  Options.DrowName.clear();
  Options.DrowFAX = std::string(45, 'M');
  rptCover cover(Report.Context());
  Run.Session.MasterReport = &cover;
  const Document document = tarvis::Compose(cover, PageSetup(), ArialMeasurer());
  std::string printed;
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] != "txtDrowAria") continue;
    EXPECT_EQ(item.Box.Left, 1440 + 6000) << "its left edge stays";
    EXPECT_LE(item.Box.Right(), document.Setup.Width);
    printed += document.Texts[item.Source].Text;
  }
  EXPECT_EQ(printed, "FAX:" + Options.DrowFAX);
}

TEST_F(Cover, CaptionsShareTheBaselineOfTheTextBesideThem) {
  const Document document = Compose();
  const auto baselineOf = [&](const std::string& control) {
    for (const Item& item : document.Items) {
      if (document.Names[item.Control] != control) continue;
      return item.Box.Top + 0.905F * 20 * document.Styles[document.Texts[item.Source].Style].Size;
    }
    return 0.0F;
  };
  EXPECT_NEAR(baselineOf("Label5"), baselineOf("txtUserTitle"), 0.01);
  EXPECT_NEAR(baselineOf("Label6"), baselineOf("txtUserDear"), 0.01);
}

TEST_F(Cover, TakesTheBlockThatIsSelected) {
  Options.SelectCover = 3;
  Options.User[2].Name = "Third";
  EXPECT_THAT(TextsOf("txtUserDear"), ElementsAre("Third"));
}

TEST_F(Cover, ASelectionOutsideTheBlocksIsARunTimeFailure) {
  for (const std::int16_t selected : std::initializer_list<std::int16_t>{0, 4, -1}) {
    Options.SelectCover = selected;
    EXPECT_THROW(Compose(), RunTimeFailure) << selected;
  }
}

TEST_F(Cover, HasNoDateWhereTheFunctionHasNone) {
  Run.Session.ActiveHeader.PrintDate = 0;
  EXPECT_THAT(TextsOf("txtDate"), IsEmpty());
}

TEST_F(Cover, AnAddresseeWithAnAddressOnlyStartsWithAnEmptyLine) {
  Options.User[0] = {"", "", "", "", "1 Street"};
  const Document document = Compose();
  EXPECT_THAT(PrintedOf(document, "txtUserAria")[0].Texts, ElementsAre("address:", "1 Street"));
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] != "txtUserAria") continue;
    EXPECT_GT(item.Box.Top, 1559 + 46 + 200) << "the first line is empty";
    break;
  }
}

TEST_F(Cover, CutsTheAddresseeButNotTheSender) {
  const std::string longName(120, 'n');
  Options.User[0] = {std::string(60, 't'), longName, longName, longName, longName};
  Options.DrowName = longName;
  Options.DrowCorp = longName;
  EXPECT_EQ(TextsOf("txtUserDear")[0].size(), 50U);
  EXPECT_EQ(TextsOf("txtUserTitle")[0].size(), 56U);
  EXPECT_EQ(TextsOf("txtDrowName")[0].size(), 50U) << "the signature is cut";
  std::size_t addressee = 0;
  for (const std::string& line : TextsOf("txtUserAria")) addressee += line.size();
  EXPECT_EQ(addressee, 50U + 100 + 50 + 8 + 100);
  std::size_t sender = 0;
  for (const std::string& line : TextsOf("txtDrowAria")) sender += line.size();
  EXPECT_EQ(sender, 240U);
}

TEST_F(Cover, ListsTheSenderInItsOrderWithoutTheZipCode) {
  Options.DrowSect = "Drives";
  Options.DrowCorp = "Maker Corp.";
  Options.DrowAdr = "2 Road";
  Options.DrowZip = "12345";
  Options.DrowFAX = "111";
  Options.DrowTEL = "222";
  Options.DrowEmail = "a@b";
  EXPECT_THAT(TextsOf("txtDrowAria"), ElementsAre("Mr. Sender", "Drives", "Maker Corp.", "address:", "2 Road",
                                                  "FAX:", "111", "TEL:", "222", "E-mail:", "a@b"));
}

TEST_F(Cover, ASenderWithAnAddressOnlyStartsWithItsCaption) {
  Options.DrowName.clear();
  Options.DrowAdr = "2 Road";
  const Document document = Compose();
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] != "txtDrowAria") continue;
    EXPECT_EQ(document.Texts[item.Source].Text, "address:");
    EXPECT_LT(item.Box.Top, 1559 + 100) << "no empty line above, unlike the addressee's";
    break;
  }
}

TEST_F(Cover, ASenderWithAFaxOnlyStartsWithAnEmptyLine) {
  Options.DrowName.clear();
  Options.DrowFAX = "111";
  const Document document = Compose();
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] != "txtDrowAria") continue;
    EXPECT_EQ(document.Texts[item.Source].Text, "FAX:");
    EXPECT_GT(item.Box.Top, 1559 + 200);
    break;
  }
}

TEST_F(Cover, ShiftsTheSenderByItsLongestLineUpToTwoThirds) {
  Options.DrowName = std::string(27, 'n');
  EXPECT_EQ(SenderLeft(), 4394) << "a full line";
  Options.DrowName = std::string(20, 'n');
  EXPECT_EQ(SenderLeft(), 4394 + 1180) << "4550 less 20 times its 27th";
  Options.DrowName = std::string(17, 'n');
  EXPECT_EQ(SenderLeft(), 6000) << "the limit";
  Options.DrowName = "x";
  EXPECT_EQ(SenderLeft(), 6000);
}

TEST_F(Cover, ABlankLineInTheAddressEndsTheMeasuring) {
  Options.DrowName = "short";
  Options.DrowAdr = "2 Road\r\n\r\n" + std::string(40, 'n');
  EXPECT_EQ(SenderLeft(), 6000);
}

TEST_F(Cover, AlwaysPrintsTwelveRows) {
  Options.Greeting = "one\r\ntwo";
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "Line4").size(), 12U);
  EXPECT_EQ(PrintedOf(document, "txtGreeting").size(), 2U);
  EXPECT_EQ(document.Pages.size(), 1U);
}

TEST_F(Cover, AnOverlongGreetingLineGoesOnInTheNextRows) {
  Options.Greeting = std::string(200, 'g') + "\r\nlast";
  const auto rows = PrintedOf(Compose(), "txtGreeting");
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[0].Texts[0].size(), 84U);
  EXPECT_EQ(rows[1].Texts[0].size(), 84U);
  EXPECT_EQ(rows[2].Texts[0].size(), 32U);
  EXPECT_EQ(rows[3].Texts[0], "last");
}

// 84 bytes are as many Hebrew or Thai letters, and half as many Vietnamese ones with a tone.
TEST_F(Cover, GreetingRowsAreBrokenByTheBytesOfTheCodePage) {
  const auto rowsOf = [this](int codePage, const std::string& letter, int count) {
    Run.CodePage = CodePage(codePage);
    Options.Greeting.clear();
    for (int number = 0; number < count; ++number) Options.Greeting += letter;
    Lines rows;
    for (const auto& row : PrintedOf(Compose(), "txtGreeting"))
      rows.insert(rows.end(), row.Texts.begin(), row.Texts.end());
    std::vector<std::size_t> letters;
    for (const std::string& row : rows) letters.push_back(row.size() / letter.size());
    return letters;
  };
  EXPECT_THAT(rowsOf(1255, "א", 100), ElementsAre(84U, 16U));
  EXPECT_THAT(rowsOf(874, "ก", 100), ElementsAre(84U, 16U));
  EXPECT_THAT(rowsOf(932, "あ", 100), ElementsAre(42U, 42U, 16U));
  EXPECT_THAT(rowsOf(1258, "\u1EBF", 100), ElementsAre(42U, 42U, 16U));
}

TEST_F(Cover, WhatIsLeftAfterTwelveRowsIsLost) {
  for (int line = 1; line <= 14; ++line) Options.Greeting += "line " + std::to_string(line) + "\r\n";
  const auto rows = PrintedOf(Compose(), "txtGreeting");
  ASSERT_EQ(rows.size(), 12U);
  EXPECT_EQ(rows[11].Texts[0], "line 12");
}

TEST_F(Cover, GreetingRowsStayOneLineHigh) {
  Options.Greeting = std::string(84, '8');  // the widest 84 bytes: wider than the row, condensed into it
  const Document document = Compose();
  const auto rows = PrintedOf(document, "txtGreeting");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].Texts.size(), 1U);
  const auto frame = PrintedOf(document, "Line4");
  EXPECT_EQ(frame[1].Box.Top - frame[0].Box.Top, 285);
}

TEST_F(Cover, ClosesTheFrame) {
  const Document document = Compose();
  for (const auto& [sides, x] : {std::pair<Lines, float>{{"Line1", "Line4", "Line6"}, 142.0F},
                                 std::pair<Lines, float>{{"Line3", "Line5", "Line7"}, 8929.0F}}) {
    float reached = 6803;
    for (const std::string& side : sides) {
      for (const Printed& line : PrintedOf(document, side)) {
        EXPECT_EQ(line.Box.Left, x);
        EXPECT_LE(line.Box.Top, reached) << side << " leaves a gap";
        reached = std::max(reached, line.Box.Bottom());
      }
    }
    EXPECT_GE(reached, 7350 + 12 * 285 + 142);
    EXPECT_EQ(PrintedOf(document, "Line8")[0].Box.Top, 7350 + 12 * 285 + 142);
  }
  EXPECT_EQ(PrintedOf(document, "Line2")[0].Box, (Rect{142, 6803, 8787, 0}));
}

TEST_F(Cover, SectionsKeepTheirHeightsAndFitOnePage) {
  Options.Greeting = "one";
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "Label14")[0].Texts[0], "Sincerely yours,");
  EXPECT_EQ(document.Pages.size(), 1U);
}

TEST_F(Cover, EntersTheContentsWithoutAGroup) {
  Run.Session.TocGroup = "Overlapping target";
  const Document document = Compose();
  ASSERT_EQ(document.Contents.size(), 1U);
  EXPECT_EQ(document.Contents[0].Text, "Cover");
  EXPECT_EQ(document.Contents[0].Level, 0);
  EXPECT_EQ(document.Contents[0].Height, 7350) << "its own band has no height";
}

TEST_F(Cover, CountsItselfAsFinished) {
  Compose();
  EXPECT_EQ(Run.Session.FinishedReports, 1);
}

TEST_F(Cover, LoadsTheLogoIntoTheTopRight) {
  const TempFolder folder;
  folder.Write("logo.bmp", "x");
  Options.DrowLogo = folder.SystemPath() + "logo.bmp";
  Report.Pictures.NextWidth = 1000;
  Report.Pictures.NextHeight = 1000;
  const auto logo = PrintedOf(Compose(), "imgLogo");
  ASSERT_EQ(logo.size(), 1U);
  EXPECT_EQ(logo[0].Box, (Rect{6094 + 2835 - 1275, 142, 1275, 1275}));
}

TEST_F(Cover, AMissingLogoIsFailureTwo) {
  Options.DrowLogo = "C:\\nowhere\\logo.bmp";
  EXPECT_THROW(Compose(), RunEnded);
  EXPECT_THAT(Report.Desktop.Messages,
              ElementsAre("Printing Error|Logo Mark File is not found.\nPrinting Process is canceled."));
}

TEST_F(Cover, TheImageStaysEmptyWithoutALogoPath) {
  EXPECT_THAT(PrintedOf(Compose(), "imgLogo"), IsEmpty());
}

TEST_F(Cover, IsTheFirstPageOfAPrintAndItsFooterFollowsThePagesFlag) {
  const TempFolder folder;
  folder.Write("User.tmp", "");
  Run.Session.TempFolder = folder.SystemPath();
  Run.Session.Mode = Mode::User;
  Options.Cover = 1;
  Options.UserOption = {1, 1, 1, 1, 1};
  Options.UserHeader = {1, 1, 1, 1, 1, "Parameters"};
  const Document document = Report.ComposeMaster();
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_EQ(document.Contents[0].Text, "Cover");
  EXPECT_EQ(PrintedOf(document, "txtPageNumber").size(), 2U);
  EXPECT_EQ(Run.Session.FinishedReports, 2);
  Options.UserHeader.Pages = 0;
  EXPECT_THAT(PrintedOf(Report.ComposeMaster(), "txtPageNumber"), IsEmpty());
}

}  // namespace
}  // namespace tarvis
