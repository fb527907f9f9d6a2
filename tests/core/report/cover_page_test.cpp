// The cover letter on paper: cuts in bytes, the rows of the greeting, and the whole page.
#include "report/rptCover.h"
#include "support/golden.h"
#include "support/host_run.h"
#include "support/repeat.h"
#include "support/structure_text.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct CoverLetter : HostRun {
  CoverLetter() { Options.SelectCover = 1; }

  Document Compose() { return Report.ComposeAlone("rptCover"); }
  // The text of a control as the report has set it, empty lines and all.
  std::string TextOf(const std::string& control) {
    const auto report = CreateFunctionReport("rptCover", Report.Context());
    report->ActiveReport_ReportStart();
    return static_cast<const TextControl&>(Find(*report, control)).Text;
  }
  float SenderLeft() {
    const auto report = CreateFunctionReport("rptCover", Report.Context());
    report->ActiveReport_ReportStart();
    return Find(*report, "txtDrowAria").Left;
  }
  // The twelve rows of the greeting.
  std::vector<std::string> Greeting() {
    const auto report = CreateFunctionReport("rptCover", Report.Context());
    report->ActiveReport_ReportStart();
    std::vector<std::string> rows;
    for (bool end = false;; end = false) {
      report->ActiveReport_FetchData(end);
      if (end) return rows;
      rows.push_back(static_cast<const TextControl&>(Find(*report, "txtGreeting")).Text);
    }
  }
  static const Control& Find(const ActiveReport& report, const std::string& name) {
    for (const auto& section : report.Sections()) {
      for (const auto& control : section->Controls()) {
        if (control->Name == name) return *control;
      }
    }
    throw std::runtime_error("no control " + name);
  }

  PrintOptions& Options = Run.Options;
  AddresseeBlock& First = Options.User[0];
};

TEST_F(CoverLetter, CutsTheAddresseeByBytes) {
  const std::string long200 = Repeat("x", 200);
  First = {long200, long200, long200, long200, long200};
  EXPECT_EQ(TextOf("txtUserAria"), Repeat("x", 50) + "\r\n" + Repeat("x", 100) + "\r\n" + Repeat("x", 50) +
                                       "\r\naddress:\r\n" + Repeat("x", 100));
  EXPECT_EQ(TextOf("txtUserTitle"), Repeat("x", 56));
  EXPECT_EQ(TextOf("txtUserDear"), Repeat("x", 50));
  Run.CodePage = CodePage(932);
  First.Name = Repeat("\u6771", 30);
  EXPECT_EQ(TextOf("txtUserDear"), Repeat("\u6771", 25));
}

TEST_F(CoverLetter, KeepsTheCarriageReturnOfABreakThatTheCutHalves) {
  First = {"", "Corp", Repeat("x", 99) + "\r\nrest", "Name", ""};
  EXPECT_EQ(TextOf("txtUserAria"), "Name\r\n" + Repeat("x", 99) + "\r\r\nCorp");
}

TEST_F(CoverLetter, MovesTheSenderAsFarRightAsItsLongestLineAllows) {
  EXPECT_EQ(SenderLeft(), 6000) << "empty";
  for (const auto& [bytes, left] : {std::pair{17, 6000}, {18, 5911}, {26, 4563}, {27, 4394}, {40, 4394}}) {
    Options.DrowName = Repeat("x", bytes);
    EXPECT_EQ(SenderLeft(), static_cast<float>(left)) << bytes;
  }
}

TEST_F(CoverLetter, EndsTheRunWithoutTheLogoThatIsNamed) {
  EXPECT_THAT(PrintedOf(Compose(), "imgLogo"), IsEmpty());
  Options.DrowLogo = PathOf("gone.bmp");
  ExpectFailure("rptCover", "Logo Mark File is not found.");
  EXPECT_THAT(Report.Pictures.Loaded, IsEmpty());
}

TEST_F(CoverLetter, AlwaysHasTwelveRows) {
  EXPECT_THAT(Greeting(), ElementsAre("", "", "", "", "", "", "", "", "", "", "", ""));
  Options.GreetingCnt = 2;  // has no say
  Options.Greeting = "one\r\n\r\nthree";
  EXPECT_THAT(Greeting(), ElementsAre("one", "", "three", "", "", "", "", "", "", "", "", ""));
  Options.Greeting = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n12\r\n13";
  EXPECT_THAT(Greeting(), SizeIs(12));
  EXPECT_EQ(Greeting().back(), "12");
}

TEST_F(CoverLetter, GoesOnInTheNextRowAfter84Bytes) {
  Options.Greeting = Repeat("a", 84) + "\r\nnext";
  EXPECT_EQ(Greeting().at(1), "next");
  Options.Greeting = Repeat("a", 84) + "b\r\nnext";
  EXPECT_EQ(Greeting().at(0), Repeat("a", 84));
  EXPECT_EQ(Greeting().at(1), "b");
  EXPECT_EQ(Greeting().at(2), "next");
  Options.Greeting = Repeat("a", 200) + "\r\nnext";
  EXPECT_EQ(Greeting().at(2), Repeat("a", 32));
  EXPECT_EQ(Greeting().at(3), "next");
  Options.Greeting = Repeat("a", 12 * 84) + "\r\nlost";
  EXPECT_EQ(Greeting().back(), Repeat("a", 84));
}

TEST_F(CoverLetter, CountsTheBytesOfJapaneseGreetings) {
  Run.CodePage = CodePage(932);
  Options.Greeting = Repeat("\u6771", 42) + "\r\nnext";
  EXPECT_EQ(Greeting().at(0), Repeat("\u6771", 42));
  EXPECT_EQ(Greeting().at(1), "next");
  Options.Greeting = Repeat("\u6771", 43);
  EXPECT_EQ(Greeting().at(0), Repeat("\u6771", 42));
  EXPECT_EQ(Greeting().at(1), "\u6771");
}

TEST_F(CoverLetter, IsPageOneOfTheDocument) {
  Run.Session.Mode = Mode::UPWizard;
  Options.PrmWizHeader = {1, 1, 1, 0, 1, "Parameter wizard"};
  Options.Cover = 1;
  Options.SelectCover = 2;
  Options.User[1] = {"Commissioning of axis 1", "Example Works", "Line 3\r\nHall B", "R. Meyer",
                     "1 Long Street\r\nTown"};
  Options.DrowCorp = "Drives and Co.";
  Options.DrowSect = "Service";
  Options.DrowName = "K. Tanaka";
  Options.DrowAdr = "2 Short Street";
  Options.DrowTEL = "01-234";
  Options.DrowEmail = "k@example.com";
  Options.DrowLogo = Picture("logo.bmp");
  Options.Greeting = "please find enclosed the settings of the drive.\r\n\r\nThey are in use since Monday.";
  WriteLines("UPWizard.tmp", {"File-Spec,3", "BASE," + Picture("base.bmp")});
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document), ElementsAre("1: Cover @ 0", "2: Electrical Schematic Diagram @ 855"));
  EXPECT_EQ(Run.Session.FinishedReports, 2);
  ExpectGolden("cover", Dump(document));
  ExpectGolden("cover_structure", StructureOf(document));
}

}  // namespace
}  // namespace tarvis
