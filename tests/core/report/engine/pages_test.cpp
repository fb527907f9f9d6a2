// How bands fill pages: sub-reports, new pages, page footers, bands taller than a page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

TEST(EnginePages, FlowsAnInnerReportOverPagesAndEndsTheRowAtItsOwnHeight) {
  SampleReport outer;
  Section& detail = outer.Fixed(SectionKind::Detail, "d", 300);
  SubReport& region = detail.AddSubReport("region", {0, 0, 1000, 2693});
  outer.Rows(3, [&](int pass) {
    auto inner = std::make_shared<SampleReport>();
    AddBlock(inner->Growing(SectionKind::Detail, "d"), pass == 0 ? "long" : "short", 100);
    inner->Rows(pass == 0 ? 4 : 1);
    region.object = pass == 1 ? nullptr : inner;
  });
  // The long row is higher than the own height of 300; the empty row takes 300.
  EXPECT_THAT(Places(ComposeSample(outer, 1000)),
              ElementsAre("1:long@0", "1:long@100", "1:long@200", "1:long@300", "1:short@700"));
}

TEST(EnginePages, MeasuresTheLastPieceOfARowOnItsPageOnly) {
  SampleReport outer;
  Section& detail = outer.Fixed(SectionKind::Detail, "d", 300);
  SubReport& region = detail.AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(2, [&](int) {
    auto inner = std::make_shared<SampleReport>();
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 200);
    inner->Rows(3);
    region.object = inner;
  });
  // One row of 200 is on page 2; the own height of 300 ends below it.
  EXPECT_THAT(Places(ComposeSample(outer, 500)),
              ElementsAre("1:row@0", "1:row@200", "2:row@0", "2:row@300", "3:row@0", "3:row@200"));
}

// Adds rows that each begin a page and hold a report of one block, but for the row `empty`, and composes all.
Document ComposeRowsOnNewPages(SampleReport& outer, int count, int empty) {
  Section& detail = outer.Fixed(SectionKind::Detail, "d", 300);
  detail.NewPageBefore = true;
  SubReport& region = detail.AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(count, [&](int pass) {
    auto inner = std::make_shared<SampleReport>();
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 100);
    region.object = pass == empty ? nullptr : inner;
  });
  return ComposeSample(outer, 1000);
}

TEST(EnginePages, StartsEachRowThatPrintsSomethingOnANewPage) {
  SampleReport outer;
  EXPECT_THAT(Places(ComposeRowsOnNewPages(outer, 3, 1)), ElementsAre("1:row@0", "2:row@0"));
}

TEST(EnginePages, AnEmptyFirstRowOpensNoPage) {
  SampleReport outer;
  EXPECT_THAT(Places(ComposeRowsOnNewPages(outer, 2, 0)), ElementsAre("1:row@0"));
}

TEST(EnginePages, AnEmptyRowLeavesNoRoomAboveTheRowThatBreaksThePage) {
  SampleReport outer;
  outer.Fixed(SectionKind::GroupHeader, "header without height", 0);
  EXPECT_THAT(Places(ComposeRowsOnNewPages(outer, 2, 0)), ElementsAre("1:row@0"));
}

TEST(EnginePages, BlankRoomIsAsGoodAsPrintAboveARowOnANewPage) {
  SampleReport outer;
  outer.Fixed(SectionKind::GroupHeader, "blank", 300);
  EXPECT_THAT(Places(ComposeRowsOnNewPages(outer, 1, -1)), ElementsAre("2:row@0"));
}

TEST(EnginePages, BlankRoomAtTheHeadOfARowGoesToItsNewPage) {
  SampleReport outer;
  AddBlock(outer.Growing(SectionKind::GroupHeader, "header"), "header", 100);
  Section& detail = outer.Fixed(SectionKind::Detail, "d", 300);
  detail.NewPageBefore = true;
  SubReport& region = detail.AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(1, [&](int) {
    auto inner = std::make_shared<SampleReport>();
    inner->Fixed(SectionKind::GroupHeader, "blank", 200);
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 100);
    region.object = inner;
  });
  EXPECT_THAT(Places(ComposeSample(outer, 1000)), ElementsAre("1:header@0", "2:row@200"));
}

TEST(EnginePages, NestsThreeDeepOverFourPages) {
  SampleReport master;
  SubReport& module = master.Fixed(SectionKind::Detail, "d", 100).AddSubReport("module", {0, 0, 1000, 10});
  Field& number =
      master.Fixed(SectionKind::PageFooter, "foot", 100).AddField("number", {0, 0, 500, 100}, Plain);
  number.Summary = Summary::PageNumber;
  master.Rows(1, [&](int) {
    auto header = std::make_shared<SampleReport>();
    AddBlock(header->Fixed(SectionKind::GroupHeader, "h", 100), "header", 100);
    SubReport& region = header->Fixed(SectionKind::Detail, "d", 100).AddSubReport("region", {0, 0, 1000, 10});
    header->Rows(2, [&region](int pass) {
      auto function = std::make_shared<SampleReport>();
      Section& guide = function->Growing(SectionKind::GroupHeader, "g");
      AddBlock(guide, "guide", 100);
      guide.Repeat = true;
      AddBlock(function->Growing(SectionKind::Detail, "d"), pass == 0 ? "first" : "second", 300);
      function->Rows(pass == 0 ? 3 : 4);
      region.object = function;
    });
    module.object = header;
  });
  EXPECT_THAT(Places(ComposeSample(master, 900)),
              ElementsAre("1:header@0", "1:guide@100", "1:first@200", "1:first@500", "1:1@710", "2:guide@0",
                          "2:first@100", "2:guide@400", "2:second@500", "2:2@710", "3:guide@0",
                          "3:second@100", "3:second@400", "3:3@710", "4:guide@0", "4:second@100", "4:4@710"));
}

TEST(EnginePages, FormatsThePageFooterWhenThePageIsClosedAndPatchesTheTotal) {
  SampleReport report;
  Section& footer = report.Fixed(SectionKind::PageFooter, "foot", 100);
  Field& number = footer.AddField("number", {0, 0, 500, 190}, Plain);
  Field& total = footer.AddField("total", {500, 0, 500, 190}, Plain);
  number.Summary = Summary::PageNumber;
  total.Summary = Summary::PageCount;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 400);
  report.Rows(12);
  const Document document = ComposeSample(report, 500);
  ASSERT_EQ(document.Pages.size(), 12U);
  const auto places = Places(document);
  EXPECT_EQ(places[1], "1:1@400");
  EXPECT_EQ(places[2], "1:12@400");
  EXPECT_EQ(places[35], "12:12@400");
}

TEST(EnginePages, AFooterOfInvisibleControlsStillTakesItsHeight) {
  SampleReport report;
  report.Fixed(SectionKind::PageFooter, "foot", 200).AddField("number", {0, 0, 500, 190}, Plain).Visible =
      false;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 400);
  report.Rows(2);
  EXPECT_THAT(Places(ComposeSample(report, 900)), ElementsAre("1:row@0", "2:row@0"));
}

TEST(EnginePages, AHeaderStaysOnItsPageWhenItsRowsAreToStartOnANewPage) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::GroupHeader, "h"), "head", 100);
  Section& detail = report.Fixed(SectionKind::Detail, "d", 300);
  detail.NewPageBefore = true;
  AddBlock(detail, "row", 300);
  report.Rows(2);
  EXPECT_THAT(Places(ComposeSample(report, 900)), ElementsAre("1:head@0", "2:row@0", "3:row@0"));
}

TEST(EnginePages, AnInnerReportBeginsBelowTheRoomAboveItsRegion) {
  SampleReport outer;
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 100).AddSubReport("region", {0, 250, 1000, 10});
  outer.Rows(2, [&](int) {
    auto inner = std::make_shared<SampleReport>();
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 400);
    region.object = inner;
  });
  // The room goes to the next page with the row that it is above.
  EXPECT_THAT(Places(ComposeSample(outer, 900)), ElementsAre("1:row@250", "2:row@250"));
}

TEST(EnginePages, CutsABandTallerThanAPageBetweenLinesOfText) {
  SampleReport report;
  Field& text = report.Growing(SectionKind::Detail, "d").AddField("text", {0, 0, 2000, 100}, Plain);
  report.Rows(2, [&](int row) { text.Text = row == 0 ? "short" : "a\r\nb\r\nc\r\nd\r\ne"; });
  // Line pitch 190: five lines are 950. The tall band starts on a fresh page.
  EXPECT_THAT(Places(ComposeSample(report, 500)),
              ElementsAre("1:short@0", "2:a@0", "2:b@190", "3:c@0", "3:d@190", "4:e@0"));
}

TEST(EnginePages, ATallBandStaysUnderHeadersWithoutOtherContent) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::GroupHeader, "h"), "head", 100);
  Field& text = report.Growing(SectionKind::Detail, "d").AddField("text", {0, 0, 2000, 100}, Plain);
  text.Text = "a\r\nb\r\nc";
  EXPECT_THAT(Places(ComposeSample(report, 500)), ElementsAre("1:head@0", "1:a@100", "1:b@290", "2:c@0"));
}

TEST(EnginePages, ABandOfExactlyThePageHeightIsNotCut) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 500);
  report.Rows(2);
  EXPECT_THAT(Places(ComposeSample(report, 500)), ElementsAre("1:row@0", "2:row@0"));
}

// A header of 100 of the report around; below it a title of 100 that is to be kept, a guide of 50 that
// repeats and the row that `addRow` fills, on pages of 1000.
std::vector<std::string> PlacesUnderHeaders(const std::function<void(Section&)>& addRow) {
  SampleReport outer;
  AddBlock(outer.Fixed(SectionKind::GroupHeader, "h", 100), "header", 100);
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 1000, 10});
  auto inner = std::make_shared<SampleReport>();
  Section& title = inner->Growing(SectionKind::GroupHeader, "t");
  AddBlock(title, "title", 100);
  title.GroupKeepTogether = Keep::All;
  Section& guide = inner->Growing(SectionKind::GroupHeader, "g");
  AddBlock(guide, "guide", 50);
  guide.Repeat = true;
  addRow(inner->Growing(SectionKind::Detail, "d"));
  region.object = inner;
  return Places(ComposeSample(outer, 1000));
}

std::vector<std::string> PlacesOfFirstRow(float row) {
  return PlacesUnderHeaders([&](Section& detail) { AddBlock(detail, "row", row); });
}

TEST(EnginePages, AFirstRowThatFitsUnderTheHeadersStaysThere) {
  EXPECT_THAT(PlacesOfFirstRow(750), ElementsAre("1:header@0", "1:title@100", "1:guide@200", "1:row@250"));
}

TEST(EnginePages, AFirstRowThatFitsAnEmptyPageWithItsTitleAndGuideMovesOnWithThem) {
  for (const float row : {751.0F, 850.0F}) {
    EXPECT_THAT(PlacesOfFirstRow(row), ElementsAre("1:header@0", "2:title@0", "2:guide@100", "2:row@150"))
        << row;
  }
}

TEST(EnginePages, AFirstRowThatFitsAnEmptyPageOnlyBelowItsGuideLeavesTheTitleToo) {
  for (const float row : {851.0F, 950.0F}) {
    EXPECT_THAT(PlacesOfFirstRow(row), ElementsAre("1:header@0", "1:title@100", "2:guide@0", "2:row@50"))
        << row;
  }
}

TEST(EnginePages, AHeaderThatFitsTheNextPageIsNotCutBelowOtherHeadersThoughItsRowIsOneFurther) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::GroupHeader, "h1"), "first", 400);
  AddBlock(report.Growing(SectionKind::GroupHeader, "h2"), "second", 400);
  report.Growing(SectionKind::GroupHeader, "h3").AddField("third", {0, 0, 1000, 380}, Plain, "a\r\nb");
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 800);
  EXPECT_THAT(Places(ComposeSample(report, 1000)),
              ElementsAre("1:first@0", "1:second@400", "2:a@0", "2:b@190", "3:row@0"));
}

TEST(EnginePages, AFirstRowThatFitsNoPageIsCutUnderTheHeaders) {
  const auto addRow = [](Section& detail) {
    detail.AddField("row", {0, 0, 1000, 283}, Plain, "a\r\nb\r\nc\r\nd\r\ne\r\nf");
  };
  EXPECT_THAT(PlacesUnderHeaders(addRow),
              ElementsAre("1:header@0", "1:title@100", "1:guide@200", "1:a@250", "1:b@440", "1:c@630",
                          "2:guide@0", "2:d@50", "2:e@240", "2:f@430"));
}

TEST(EnginePages, ARowThatDoesNotFitBelowTheRepeatedGuideIsCutThere) {
  SampleReport report;
  Section& guide = report.Growing(SectionKind::GroupHeader, "g");
  AddBlock(guide, "guide", 100);
  guide.Repeat = true;
  Shape& row = report.Growing(SectionKind::Detail, "d").AddShape("row", {0, 0, 1000, 900});
  report.Rows(2, [&](int index) { row.Height = index == 0 ? 900.0F : 950.0F; });
  EXPECT_THAT(Places(ComposeSample(report, 1000)),
              ElementsAre("1:guide@0", "1:row@100", "2:guide@0", "2:row@100", "3:guide@0", "3:row@100"));
}

TEST(EnginePages, AHeaderHigherThanHalfAPageIsContentThatItsRowsNeedNotFollow) {
  SampleReport outer;
  AddBlock(outer.Fixed(SectionKind::GroupHeader, "h", 100), "header", 100);
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 1000, 10});
  auto inner = std::make_shared<SampleReport>();
  AddBlock(inner->Growing(SectionKind::GroupHeader, "t"), "title", 100);
  AddBlock(inner->Growing(SectionKind::GroupHeader, "p"), "graph", 750);
  AddBlock(inner->Growing(SectionKind::GroupHeader, "g"), "guide", 40);
  AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 40);
  region.object = inner;
  EXPECT_THAT(Places(ComposeSample(outer, 1000)),
              ElementsAre("1:header@0", "1:title@100", "1:graph@200", "2:guide@0", "2:row@40"));
}

}  // namespace
}  // namespace tarvis
