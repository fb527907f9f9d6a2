// The common header, the small blocks and the band.
#include "report/rptBaseHeader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/band_bitmap.h"
#include "support/report_run.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CommonHeader : testing::Test {
  CommonHeader() {
    Session.ActiveHeader = {1, 1, 1, 1, 1, "Parameters"};
    Report.Run.Header.MechaInfo = "Servo pack 400 W";
    Report.Run.Header.File = "axis1.usr";
    Session.ModuleNames.Resize(0);
  }

  Document Compose() {
    rptBaseHeader header(Report.Context(),
                         [this](const std::string& name, ReportContext) -> std::shared_ptr<ActiveReport> {
                           Asked.push_back(name);
                           if (name != "known") return nullptr;
                           auto made = std::make_shared<SampleReport>();
                           made->Growing(SectionKind::Detail, "d").AddShape("known", {0, 0, 100, 1000});
                           return made;
                         });
    return tarvis::Compose(header, {10000, 14918, 0, 0, 0, 0}, ArialMeasurer());
  }
  std::vector<std::string> TextsOf(const std::string& control) {
    const auto printed = PrintedOf(Compose(), control);
    return printed.empty() ? std::vector<std::string>{} : printed[0].Texts;
  }

  ReportRun Report;
  PrintSession& Session = Report.Run.Session;
  std::vector<std::string> Asked;
};

TEST_F(CommonHeader, ShowsTitleModelsDateAndFile) {
  EXPECT_THAT(TextsOf("txtTitle"), ElementsAre("Parameters"));
  EXPECT_THAT(TextsOf("txtMechaInfo"), ElementsAre("Servo pack 400 W"));
  EXPECT_THAT(TextsOf("txtPrnDate"), ElementsAre("Printing Date : March 05, 2026"));
  EXPECT_THAT(TextsOf("txtFileName"), ElementsAre("File Name : axis1.usr"));
}

TEST_F(CommonHeader, EachFlagHidesItsText) {
  Session.ActiveHeader = {0, 0, 0, 0, 1, "Parameters"};
  for (const char* control : {"txtTitle", "txtMechaInfo", "txtPrnDate", "txtFileName"}) {
    EXPECT_THAT(TextsOf(control), IsEmpty()) << control;
  }
}

TEST_F(CommonHeader, FlagsOtherThanOneAreOff) {
  Session.ActiveHeader = {2, -1, 2, 2, 1, "Parameters"};
  EXPECT_THAT(TextsOf("txtTitle"), IsEmpty());
  EXPECT_THAT(TextsOf("txtMechaInfo"), IsEmpty());
}

TEST_F(CommonHeader, TheRuleAlwaysPrintsAndTheHeaderKeepsItsHeight) {
  Session.ActiveHeader = {};
  Session.ModuleNames[0] = "known";
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "Line1")[0].Box, (Rect{0, 425, 9000, 0}));
  EXPECT_EQ(PrintedOf(document, "known")[0].Box.Top, 855);
}

TEST_F(CommonHeader, NoFileNameGivesNoCaption) {
  Report.Run.Header.File.clear();
  EXPECT_THAT(TextsOf("txtFileName"), IsEmpty());
}

TEST_F(CommonHeader, ALongModelsInfoRunsOnUpToTheFileNameBeforeItIsCondensed) {
  const auto widthOf = [&](int letters) {
    Report.Run.Header.MechaInfo = std::string(static_cast<std::size_t>(letters), 'a');
    const Document document = Compose();
    for (const Item& item : document.Items) {
      if (document.Names[item.Control] == "txtMechaInfo") return item.Box.Width;
    }
    return 0.0F;
  };
  EXPECT_NEAR(widthOf(54), 54 * 0.556 * 170, 0.1) << "5104 twips in a box of 3685";
  EXPECT_EQ(widthOf(56), 5244 - 60) << "the file name's box begins at 5244";
}

TEST_F(CommonHeader, CutsTheTitleTo58Bytes) {
  Session.ActiveHeader.TitleText = std::string(40, 'T') + "-Overlapping result";
  EXPECT_THAT(TextsOf("txtTitle"), ElementsAre(std::string(40, 'T') + "-Overlapping resul"));
}

TEST_F(CommonHeader, TheCutMayHalveADoubleByteCharacter) {
  Report.Run.CodePage = CodePage(932);
  std::string title = "x";
  for (int index = 0; index < 30; ++index) title += "\xE6\xBC\xA2";  // 61 bytes of the code page
  Session.ActiveHeader.TitleText = title;
  const auto texts = TextsOf("txtTitle");
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].substr(0, 1 + 28 * 3), title.substr(0, 1 + 28 * 3));
  EXPECT_LT(texts[0].size(), title.size());
}

TEST_F(CommonHeader, KeepsTheDateClearOfTheRule) {
  const Document document = Compose();
  for (const Item& item : document.Items) {
    if (item.Kind != ItemKind::Text || document.Names[item.Control] != "txtPrnDate") continue;
    EXPECT_EQ(item.Box.Top, 235);
    EXPECT_EQ(item.Box.Bottom(), 425);
    EXPECT_NEAR(item.Box.Right(), 5953 + 2976, 0.01);
  }
}

TEST_F(CommonHeader, AnUnknownNameLeavesItsRowEmpty) {
  Session.ModuleNames.Resize(2);
  Session.ModuleNames[0] = "known";
  Session.ModuleNames[1] = "unknown";
  Session.ModuleNames[2] = "known";
  Session.ModuleLast = 2;
  const auto known = PrintedOf(Compose(), "known");
  ASSERT_EQ(known.size(), 2U);
  EXPECT_EQ(known[1].Box.Top - known[0].Box.Top, 1000 + 645);
}

TEST_F(CommonHeader, CountsItselfAsFinished) {
  Compose();
  EXPECT_EQ(Session.FinishedReports, 1);
  EXPECT_THAT(Asked, ElementsAre(""));
}

struct SmallBlocks : testing::Test {
  ReportRun Report;
};

TEST_F(SmallBlocks, PrintTheBandAndTheirText) {
  Report.Run.Session.DataDate = "2026/03/05 10:11";
  const Document document = Report.ComposeAlone("rptDataDate");
  EXPECT_EQ(PrintedOf(document, "Image1")[0].Box, (Rect{0, 210, 8925, 420}));
  EXPECT_THAT(PrintedOf(document, "Label1")[0].Texts, ElementsAre("Acquisition Date of the Data"));
  EXPECT_THAT(PrintedOf(document, "Field1")[0].Texts, ElementsAre("2026/03/05 10:11"));
  EXPECT_EQ(document.Contents.at(0).Text, "Acquisition Date of the Data");
  EXPECT_EQ(document.Contents.at(0).Height, 1134);
}

TEST_F(SmallBlocks, ACommentOfThreeLinesMakesTheBlockThreeLinesHigh) {
  Report.Run.User.Comment = "one\r\ntwo\r\nthree";
  const Document document = Report.ComposeAlone("rptUserComment");
  EXPECT_THAT(PrintedOf(document, "Field1")[0].Texts, ElementsAre("one", "two", "three"));
  EXPECT_EQ(document.Contents.at(0).Height, 850 + 3 * 190);
}

TEST_F(SmallBlocks, ATrailingLineBreakAddsNoLine) {
  Report.Run.User.Comment = "one\r\ntwo\r\n";
  EXPECT_EQ(Report.ComposeAlone("rptUserComment").Contents.at(0).Height, 850 + 2 * 190);
}

TEST_F(SmallBlocks, AnEmptyTextStillPrintsTheBand) {
  for (const char* name : {"rptUserComment", "rptDataDate"}) {
    const Document document = Report.ComposeAlone(name);
    EXPECT_EQ(PrintedOf(document, "Image1").size(), 1U) << name;
    EXPECT_EQ(document.Contents.size(), 1U) << name;
  }
}

TEST_F(SmallBlocks, ACommentLongerThanAPageGoesOnOnTheNext) {
  for (int index = 0; index < 100; ++index)
    Report.Run.User.Comment += "line " + std::to_string(index) + "\r\n";
  const Document document = Report.ComposeAlone("rptUserComment");
  EXPECT_EQ(document.Pages.size(), 2U);
  std::size_t lines = 0;
  for (const Item& item : document.Items) lines += document.Names[item.Control] == "Field1" ? 1U : 0U;
  EXPECT_EQ(lines, 100U);
}

std::uint32_t PixelOf(const std::string& bitmap, int x, int rowFromTop) {
  const std::size_t offset =
      54 + static_cast<std::size_t>(28 - rowFromTop) * 1608 + static_cast<std::size_t>(x) * 3;
  const auto byte = [&](std::size_t index) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(bitmap[index]));
  };
  return byte(offset) | byte(offset + 1) << 8U | byte(offset + 2) << 16U;
}

TEST(Band, IsTheOnePictureOfAllFunctionReports) {
  const std::string& bitmap = BandBitmap();
  ASSERT_EQ(bitmap.size(), 46686U);
  EXPECT_EQ(bitmap.substr(0, 2), "BM");
  EXPECT_EQ(PixelOf(bitmap, 0, 0), 0x676799U);
  EXPECT_EQ(PixelOf(bitmap, 230, 0), 0x676799U);
  EXPECT_EQ(PixelOf(bitmap, 231, 0), 0xFFFFFFU);
  EXPECT_EQ(PixelOf(bitmap, 535, 13), 0xFFFFFFU);
  EXPECT_EQ(PixelOf(bitmap, 277, 26), 0x6B6B9BU);
  EXPECT_EQ(PixelOf(bitmap, 278, 26), 0x666699U);
  EXPECT_EQ(PixelOf(bitmap, 535, 28), 0x666699U);
}

}  // namespace
}  // namespace tarvis
