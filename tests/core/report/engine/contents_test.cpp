// Where contents entries lead: to the band in whose event they were added, wherever that finally lands.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

// "text" or "  text", page and top of each entry.
std::vector<std::string> Entries(const Document& document) {
  std::vector<std::string> entries;
  for (const ContentsEntry& entry : document.Contents) {
    entries.push_back(std::string(static_cast<std::size_t>(entry.Level) * 2, ' ') + entry.Text + " " +
                      std::to_string(entry.Page + 1) + "@" + std::to_string(static_cast<int>(entry.Top)));
  }
  return entries;
}

TEST(EngineContents, EntriesTakeThePlaceOfTheirBandWhicheverEventAddsThem) {
  SampleReport report;
  Section& first = report.Growing(SectionKind::GroupHeader, "h1");
  first.AddShape("a", {0, 0, 100, 100});
  first.Format = [&] { report.TOC.Add("format"); };
  Section& second = report.Growing(SectionKind::GroupHeader, "h2");
  second.AddShape("b", {0, 0, 100, 100});
  second.BeforePrint = [&] { report.TOC.Add("before"); };
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddShape("c", {0, 0, 100, 100});
  detail.AfterPrint = [&] { report.TOC.Add("after"); };
  EXPECT_THAT(Entries(ComposeSample(report, 1000)), ElementsAre("format 1@0", "before 1@100", "after 1@200"));
}

TEST(EngineContents, ABandWithoutHeightTakesThePlaceOfTheNext) {
  SampleReport report;
  report.Growing(SectionKind::GroupHeader, "work").Format = [&] { report.TOC.Add("Cover"); };
  report.Growing(SectionKind::GroupHeader, "h").AddShape("a", {0, 50, 100, 300});
  report.Growing(SectionKind::Detail, "d");
  const Document document = ComposeSample(report, 1000);
  EXPECT_THAT(Entries(document), ElementsAre("Cover 1@0"));
  EXPECT_EQ(document.Contents[0].Height, 350);
}

TEST(EngineContents, ABandWithoutHeightAtTheEndTakesThePlaceThereWhateverEmptyBandFollows) {
  SampleReport report;
  report.Growing(SectionKind::Detail, "d").AddShape("a", {0, 0, 100, 300});
  report.Growing(SectionKind::GroupFooter, "f1");
  report.Growing(SectionKind::GroupFooter, "sum").Format = [&] { report.TOC.Add("Sum"); };
  report.Growing(SectionKind::GroupFooter, "f3");
  for (const char* header : {"h1", "h2", "h3"}) report.Growing(SectionKind::GroupHeader, header);
  EXPECT_THAT(Entries(ComposeSample(report, 1000)), ElementsAre("Sum 1@300"));
}

TEST(EngineContents, EntriesAreWrittenAsTheTextOfPagesIs) {
  SampleReport report;
  report.Growing(SectionKind::GroupHeader, "h").Format = [&] {
    report.TOC.Add("\u00EA\u0301\\e\u0301");
    report.TOC.Add("\u1EBF\\\u05E9\u05DC");
  };
  report.Growing(SectionKind::Detail, "d").AddShape("c", {0, 0, 100, 100});
  EXPECT_THAT(Entries(ComposeSample(report, 1000)),
              ElementsAre("\u1EBF 1@0", "  \u00E9 1@0", "  \u05E9\u05DC 1@0"));
}

TEST(EngineContents, EntriesMoveWithAKeptGroup) {
  SampleReport outer;
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 10, 10});
  outer.Rows(2, [&](int pass) {
    auto inner = std::make_shared<SampleReport>();
    Section& title = inner->Growing(SectionKind::GroupHeader, "t");
    title.AddShape("title", {0, 0, 100, 100});
    title.GroupKeepTogether = Keep::All;
    title.AfterPrint = [&outer, pass] { outer.TOC.Add("entry" + std::to_string(pass)); };
    inner->Growing(SectionKind::Detail, "d").AddShape("row", {0, 0, 100, 100});
    inner->Rows(3);
    region.object = inner;
  });
  EXPECT_THAT(Entries(ComposeSample(outer, 700)), ElementsAre("entry0 1@0", "entry1 2@0"));
}

TEST(EngineContents, APathIsSplitAtItsFirstBackslash) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddShape("a", {0, 0, 100, 400});
  int row = 0;
  const std::vector<std::string> paths{"Alone", "Group\\first\\rest", "Other\\x", "Group\\second", "Alone"};
  detail.AfterPrint = [&] { report.TOC.Add(paths[static_cast<std::size_t>(row++)]); };
  report.Rows(5);
  EXPECT_THAT(Entries(ComposeSample(report, 1000)),
              ElementsAre("Alone 1@0", "Group 1@400", "  first\\rest 1@400", "  second 2@400", "Other 2@0",
                          "  x 2@0", "Alone 3@0"));
}

TEST(EngineContents, TextsKeepTheirTrailingBlanks) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddShape("a", {0, 0, 100, 400});
  detail.AfterPrint = [&] { report.TOC.Add("Resonance/Anti-Resonance "); };
  EXPECT_EQ(ComposeSample(report, 1000).Contents[0].Text, "Resonance/Anti-Resonance ");
}

TEST(EngineContents, EntriesOfADroppedBandAreDropped) {
  SampleReport report;
  Section& header = report.Growing(SectionKind::GroupHeader, "h");
  header.AddShape("a", {0, 0, 100, 400});
  header.BeforePrint = [&] {
    report.TOC.Add("never");
    report.Unload();
  };
  report.Growing(SectionKind::Detail, "d");
  EXPECT_TRUE(ComposeSample(report, 1000).Contents.empty());
}

TEST(EngineContents, NothingIsTakenOnceTheDocumentIsComposed) {
  SampleReport report;
  report.Growing(SectionKind::Detail, "d");
  const Document document = ComposeSample(report, 1000);
  report.TOC.Add("late");
  EXPECT_TRUE(document.Contents.empty());
}

}  // namespace
}  // namespace tarvis
