// In which order bands come and what stays together: events, rows, kept groups, repeated headers, unloading.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

TEST(EngineFlow, RunsEventsInTheOrderOfTheContract) {
  SampleReport report;
  report.Watch(report.Growing(SectionKind::GroupHeader, "h1"));
  report.Watch(report.Growing(SectionKind::GroupHeader, "h2"));
  report.Watch(report.Growing(SectionKind::Detail, "d"));
  report.Watch(report.Growing(SectionKind::GroupFooter, "f2"));
  report.Watch(report.Growing(SectionKind::GroupFooter, "f1"));
  report.Rows(2);
  ComposeSample(report, 1000);
  EXPECT_THAT(report.Log, ElementsAre("start", "fetch", "h1.Format", "h1.BeforePrint", "h1.AfterPrint",
                                      "h2.Format", "h2.BeforePrint", "h2.AfterPrint", "d.Format",
                                      "d.BeforePrint", "d.AfterPrint", "fetch", "d.Format", "d.BeforePrint",
                                      "d.AfterPrint", "fetch", "f2.Format", "f2.BeforePrint", "f2.AfterPrint",
                                      "f1.Format", "f1.BeforePrint", "f1.AfterPrint", "end"));
}

TEST(EngineFlow, PrintsOneRowWithoutAFetchHandler) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 100);
  EXPECT_THAT(Places(ComposeSample(report, 1000)), ElementsAre("1:row@0"));
}

TEST(EngineFlow, PrintsHeadersAndFootersWithoutRows) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::GroupHeader, "h"), "head", 100);
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 100);
  AddBlock(report.Growing(SectionKind::GroupFooter, "f"), "foot", 50);
  report.Rows(0);
  EXPECT_THAT(Places(ComposeSample(report, 1000)), ElementsAre("1:head@0", "1:foot@100"));
}

TEST(EngineFlow, GivesAnEmptyReportOnePage) {
  SampleReport report;
  report.Rows(0);
  EXPECT_EQ(ComposeSample(report, 1000).Pages.size(), 1U);
}

TEST(EngineFlow, MovesABandThatDoesNotFitWholeToTheNextPage) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 400);
  report.Rows(3);
  EXPECT_THAT(Places(ComposeSample(report, 1000)), ElementsAre("1:row@0", "1:row@400", "2:row@0"));
}

TEST(EngineFlow, KeepsTitleGuideAndFirstRowTogether) {
  SampleReport outer;
  SampleReport* inner = nullptr;
  Section& detail = outer.Fixed(SectionKind::Detail, "d", 0);
  SubReport& region = detail.AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(2, [&](int) {
    auto made = std::make_shared<SampleReport>();
    inner = made.get();
    AddBlock(inner->Growing(SectionKind::GroupHeader, "t"), "title", 100);
    AddBlock(inner->Growing(SectionKind::GroupHeader, "g"), "guide", 100);
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 200);
    inner->Rows(2);
    region.object = made;
  });
  EXPECT_THAT(Places(ComposeSample(outer, 950)),
              ElementsAre("1:title@0", "1:guide@100", "1:row@200", "1:row@400", "2:title@0", "2:guide@100",
                          "2:row@200", "2:row@400"));
}

// A group of `rows` rows of 100 below a title of 100, after `before` rows of 100 of another report.
std::vector<std::string> PlacesOfKeptGroup(int before, int rows, float page) {
  SampleReport outer;
  Section& detail = outer.Fixed(SectionKind::Detail, "d", 0);
  SubReport& region = detail.AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(2, [&, before, rows](int pass) {
    auto inner = std::make_shared<SampleReport>();
    if (pass == 1) {
      Section& title = inner->Growing(SectionKind::GroupHeader, "t");
      AddBlock(title, "title", 100);
      title.GroupKeepTogether = Keep::All;
    }
    AddBlock(inner->Growing(SectionKind::Detail, "d"), pass == 1 ? "row" : "above", 100);
    inner->Rows(pass == 1 ? rows : before);
    region.object = inner;
  });
  return Places(ComposeSample(outer, page));
}

TEST(EngineFlow, MovesAKeptGroupThatFitsAnEmptyPageOnly) {
  EXPECT_THAT(PlacesOfKeptGroup(2, 2, 400),
              ElementsAre("1:above@0", "1:above@100", "2:title@0", "2:row@100", "2:row@200"));
}

TEST(EngineFlow, KeepsAGroupThatFitsWhereItStarts) {
  EXPECT_THAT(PlacesOfKeptGroup(1, 2, 400),
              ElementsAre("1:above@0", "1:title@100", "1:row@200", "1:row@300"));
}

TEST(EngineFlow, StartsAKeptGroupLongerThanAPageOnThePresentPage) {
  EXPECT_THAT(PlacesOfKeptGroup(2, 4, 400), ElementsAre("1:above@0", "1:above@100", "1:title@200",
                                                        "1:row@300", "2:row@0", "2:row@100", "2:row@200"));
}

TEST(EngineFlow, MovesALongKeptGroupIfItsFirstRowDoesNotFit) {
  EXPECT_THAT(PlacesOfKeptGroup(3, 4, 400),
              ElementsAre("1:above@0", "1:above@100", "1:above@200", "2:title@0", "2:row@100", "2:row@200",
                          "2:row@300", "3:row@0"));
}

// A header of 100 of the report around, then a kept group of a title and `rows` rows of 100.
std::vector<std::string> PlacesUnderAHeader(int rows, float page) {
  SampleReport outer;
  AddBlock(outer.Fixed(SectionKind::GroupHeader, "h", 100), "header", 100);
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(1, [&](int) {
    auto inner = std::make_shared<SampleReport>();
    Section& title = inner->Growing(SectionKind::GroupHeader, "t");
    AddBlock(title, "title", 100);
    title.GroupKeepTogether = Keep::All;
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 100);
    inner->Rows(rows);
    region.object = inner;
  });
  return Places(ComposeSample(outer, page));
}

TEST(EngineFlow, DoesNotLeaveAPageThatHoldsHeadersOnly) {
  // The group is as high as a page: it fits an empty page, but not under the header.
  EXPECT_THAT(PlacesUnderAHeader(3, 400),
              ElementsAre("1:header@0", "1:title@100", "1:row@200", "1:row@300", "2:row@0"));
}

TEST(EngineFlow, CountsTheFootersOfAKeptGroup) {
  SampleReport outer;
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(2, [&](int) {
    auto inner = std::make_shared<SampleReport>();
    Section& title = inner->Growing(SectionKind::GroupHeader, "t");
    AddBlock(title, "title", 100);
    title.GroupKeepTogether = Keep::All;
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 100);
    AddBlock(inner->Growing(SectionKind::GroupFooter, "f"), "foot", 100);
    region.object = inner;
  });
  EXPECT_THAT(Places(ComposeSample(outer, 550)),
              ElementsAre("1:title@0", "1:row@100", "1:foot@200", "2:title@0", "2:row@100", "2:foot@200"));
}

TEST(EngineFlow, RepeatsTheGuideOnEachPageWithItsEvents) {
  SampleReport report;
  Section& title = report.Growing(SectionKind::GroupHeader, "t");
  AddBlock(title, "title", 100);
  Section& guide = report.Growing(SectionKind::GroupHeader, "g");
  AddBlock(guide, "guide", 100);
  guide.Repeat = true;
  report.Watch(guide);
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 200);
  report.Rows(4);
  EXPECT_THAT(Places(ComposeSample(report, 500)),
              ElementsAre("1:title@0", "1:guide@100", "1:row@200", "2:guide@0", "2:row@100", "2:row@300",
                          "3:guide@0", "3:row@100"));
  EXPECT_EQ(std::count(report.Log.begin(), report.Log.end(), "g.Format"), 3);
  EXPECT_EQ(std::count(report.Log.begin(), report.Log.end(), "g.BeforePrint"), 3);
  EXPECT_EQ(std::count(report.Log.begin(), report.Log.end(), "g.AfterPrint"), 3);
}

TEST(EngineFlow, RepeatsTheGuideAboveAFooterThatMovedAlone) {
  SampleReport report;
  Section& guide = report.Growing(SectionKind::GroupHeader, "g");
  AddBlock(guide, "guide", 100);
  guide.Repeat = true;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 200);
  AddBlock(report.Growing(SectionKind::GroupFooter, "f"), "foot", 150);
  report.Rows(2);
  EXPECT_THAT(Places(ComposeSample(report, 500)),
              ElementsAre("1:guide@0", "1:row@100", "1:row@300", "2:guide@0", "2:foot@100"));
}

TEST(EngineFlow, FootersOfNoHeightOpenNoPage) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 500);
  report.Growing(SectionKind::GroupFooter, "f", 15);
  EXPECT_EQ(ComposeSample(report, 500).Pages.size(), 1U);
}

TEST(EngineFlow, LayoutActionFiveLeavesNoRowAndNoEvents) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::GroupHeader, "t"), "title", 100);
  Section& detail = report.Growing(SectionKind::Detail, "d");
  Field& text = detail.AddField("text", {0, 0, 1000, 100}, Plain);
  int row = 0;
  std::vector<int> printed;
  report.Rows(4, [&](int index) {
    row = index;
    text.Text = std::to_string(index);
  });
  detail.Format = [&] {
    if (row == 0 || row == 2 || row == 3) report.LayoutAction = 5;
  };
  detail.BeforePrint = [&] { printed.push_back(row); };
  EXPECT_THAT(Places(ComposeSample(report, 1000)), ElementsAre("1:title@0", "1:1@100"));
  EXPECT_THAT(printed, ElementsAre(1));
}

TEST(EngineFlow, KeepsHeadersWithTheFirstRowThatPrints) {
  SampleReport outer;
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(2, [&](int) {
    auto inner = std::make_shared<SampleReport>();
    AddBlock(inner->Growing(SectionKind::GroupHeader, "t"), "title", 100);
    Section& detail = inner->Growing(SectionKind::Detail, "d");
    AddBlock(detail, "row", 200);
    auto* raw = inner.get();
    auto count = std::make_shared<int>(0);
    detail.Format = [raw, count] { raw->LayoutAction = (*count)++ < 1 ? 5 : 0; };
    inner->Rows(2);
    region.object = inner;
  });
  EXPECT_THAT(Places(ComposeSample(outer, 450)),
              ElementsAre("1:title@0", "1:row@100", "2:title@0", "2:row@100"));
}

TEST(EngineFlow, UnloadInTheGuideKeepsTheTitleAndEndsTheReport) {
  SampleReport outer;
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 1000, 10});
  std::vector<std::string> log;
  outer.Rows(2, [&](int pass) {
    auto inner = std::make_shared<SampleReport>();
    auto* raw = inner.get();
    Section& title = inner->Growing(SectionKind::GroupHeader, "t");
    AddBlock(title, "title", 100);
    title.AfterPrint = [&outer, pass] { outer.TOC.Add("entry " + std::to_string(pass)); };
    Section& guide = inner->Growing(SectionKind::GroupHeader, "g");
    AddBlock(guide, "guide", 100);
    if (pass == 0) guide.BeforePrint = [raw] { raw->Unload(); };
    AddBlock(inner->Growing(SectionKind::Detail, "d"), "row", 100);
    AddBlock(inner->Growing(SectionKind::GroupFooter, "f"), "foot", 100);
    region.object = inner;
  });
  const Document document = ComposeSample(outer, 1000);
  EXPECT_THAT(Places(document),
              ElementsAre("1:title@0", "1:title@100", "1:guide@200", "1:row@300", "1:foot@400"));
  ASSERT_EQ(document.Contents.size(), 2U);
  EXPECT_EQ(document.Contents[0].Text, "entry 0");
}

TEST(EngineFlow, UnloadedReportStillGetsItsEndEvent) {
  SampleReport report;
  Section& guide = report.Growing(SectionKind::GroupHeader, "g");
  guide.BeforePrint = [&] { report.Unload(); };
  report.Growing(SectionKind::Detail, "d");
  ComposeSample(report, 1000);
  EXPECT_EQ(report.Log.back(), "end");
}

}  // namespace
}  // namespace tarvis
