// What one band comes to: growth, section heights, what lasts from row to row, text in boxes, paint order.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/engine/text_cache.h"
#include "support/fake_pictures.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

// The only item of that control and kind.
const Item& Find(const Document& document, const std::string& control, ItemKind kind) {
  for (const Item& item : document.Items) {
    if (item.Kind == kind && document.Names[item.Control] == control) return item;
  }
  throw std::runtime_error("no item of " + control);
}

// One growing detail with one field.
struct OneField {
  explicit OneField(const std::string& content, Rect place = {0, 0, 2000, 283}, CellStyle style = Plain,
                    bool growing = true)
      : Detail(growing ? Report.Growing(SectionKind::Detail, "d")
                       : Report.Fixed(SectionKind::Detail, "d", 2000)),
        Text(Detail.AddField("text", place, style)) {
    Text.Text = content;
  }
  Document Compose() { return ComposeSample(Report, 20000); }

  SampleReport Report;
  Section& Detail;
  Field& Text;
};

TEST(EngineGrowth, AFieldGrowsDownwardsToItsText) {
  OneField one("a\r\nb\r\nc", {0, 0, 2000, 283}, Cell);
  EXPECT_EQ(Find(one.Compose(), "text", ItemKind::Box).Box.Height, 3 * 190);
}

TEST(EngineGrowth, AFieldNeverShrinksBelowItsSetHeight) {
  OneField one("a", {0, 0, 2000, 1134}, Cell);
  EXPECT_EQ(Find(one.Compose(), "text", ItemKind::Box).Box.Height, 1134);
}

TEST(EngineGrowth, AnEmptyFieldKeepsItsHeight) {
  OneField one("", {0, 0, 2000, 142}, Cell);
  EXPECT_EQ(Find(one.Compose(), "text", ItemKind::Box).Box.Height, 142);
}

TEST(EngineGrowth, TenTwipsOfHeightAreTolerated) {
  OneField fits("a\r\nb", {0, 0, 2000, 370}, Cell);
  EXPECT_EQ(Find(fits.Compose(), "text", ItemKind::Box).Box.Height, 370);
  OneField grows("a\r\nb", {0, 0, 2000, 369}, Cell);
  EXPECT_EQ(Find(grows.Compose(), "text", ItemKind::Box).Box.Height, 380);
}

TEST(EngineGrowth, GrowthMovesNoOtherControlAndLevelsNoNeighbour) {
  OneField one("a\r\nb\r\nc", {0, 0, 2000, 283}, Cell);
  one.Detail.AddField("beside", {2000, 0, 500, 283}, Cell);
  one.Detail.AddField("below", {0, 283, 500, 283}, Cell);
  const Document document = one.Compose();
  EXPECT_EQ(Find(document, "beside", ItemKind::Box).Box, (Rect{2000, 0, 500, 283}));
  EXPECT_EQ(Find(document, "below", ItemKind::Box).Box, (Rect{0, 283, 500, 283}));
}

TEST(EngineGrowth, LabelsAndShapesDoNotGrow) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddLabel("label", {0, 0, 1000, 283}, "a\r\nb\r\nc\r\nd", Cell);
  const Document document = ComposeSample(report, 5000);
  EXPECT_EQ(Find(document, "label", ItemKind::Box).Box.Height, 283);
}

TEST(EngineGrowth, AHiddenFieldNeitherGrowsNorCountsButItsHeightCanBeRead) {
  OneField one("a\r\nb\r\nc");
  one.Text.Visible = false;
  Field& shown = one.Detail.AddField("shown", {0, 0, 500, 283}, Cell);
  float seen = 0;
  one.Detail.BeforePrint = [&] { seen = one.Text.Height; };
  one.Report.Rows(2);
  const Document document = one.Compose();
  EXPECT_EQ(seen, 283);
  EXPECT_EQ(shown.Height, 283);
  EXPECT_THAT(Places(document), ElementsAre("1:shown@0", "1:shown@283"));
}

TEST(EngineGrowth, FieldsOfSectionsThatCannotGrowKeepTheirHeight) {
  OneField one("a\r\nb\r\nc", {0, 0, 2000, 283}, Cell, false);
  EXPECT_EQ(Find(one.Compose(), "text", ItemKind::Box).Box.Height, 283);
}

TEST(EngineRows, GrowthLastsForOnePrintingOnly) {
  OneField one("", {0, 0, 2000, 283}, Cell);
  one.Report.Rows(2, [&](int row) { one.Text.Text = row == 0 ? "a\r\nb\r\nc" : "x"; });
  const Document document = one.Compose();
  EXPECT_EQ(document.Items[0].Box.Height, 570);
  EXPECT_EQ(document.Items[4].Box.Height, 283);
}

TEST(EngineRows, GeometrySetInBeforePrintLastsForOnePrintingOnly) {
  OneField one("x", {0, 0, 2000, 283}, Cell);
  std::vector<Rect> seen;
  one.Detail.BeforePrint = [&] {
    Field& text = one.Text;
    seen.push_back({text.Left, text.Top, text.Width, text.Height});
    text.Left += 100;
    text.Top += 10;
    text.Width /= 2;
    text.Height *= 2;
  };
  one.Report.Rows(2);
  const Document document = one.Compose();
  const Rect box{0, 0, 2000, 283};
  EXPECT_THAT(seen, ElementsAre(box, box));
  EXPECT_EQ(document.Items[2].Box, (Rect{100, 586, 1000, 566}));
}

TEST(EngineRows, GeometrySetInFetchOrFormatLasts) {
  OneField one("x", {0, 0, 2000, 283}, Cell);
  one.Report.Rows(3, [&](int row) {
    if (row == 0) one.Text.Height *= 2;
  });
  int row = 0;
  one.Detail.Format = [&] {
    if (row++ == 1) one.Text.Left = 100;
  };
  const Document document = one.Compose();
  EXPECT_EQ(document.Items[4].Box, (Rect{100, 1132, 2000, 566}));
}

TEST(EngineRows, GrownHeightsCanBeReadInBeforePrint) {
  OneField one("a\r\nb\r\nc");
  float seen = 0;
  one.Detail.BeforePrint = [&] { seen = one.Text.Height; };
  one.Compose();
  EXPECT_EQ(seen, 570);
}

TEST(EngineSections, AreAsHighAsTheLowestVisibleControl) {
  SampleReport report;
  Section& guide = report.Growing(SectionKind::GroupHeader, "g", 420);
  guide.AddField("title", {0, 142, 500, 283}, Cell);
  Section& detail = report.Growing(SectionKind::Detail, "d", 405);
  detail.AddField("row", {0, 0, 500, 283}, Cell);
  detail.AddField("hidden", {0, 0, 500, 900}, Cell).Visible = false;
  detail.AddLine("line", 0, 0, 0, 1000);
  report.Rows(2);
  EXPECT_THAT(Places(ComposeSample(report, 5000)),
              ElementsAre("1:title@142", "1:row@425", "1:line@425", "1:row@708", "1:line@708"));
}

TEST(EngineSections, TakeNoRoomWithoutVisibleControlsIfTheyCanShrink) {
  SampleReport report;
  report.Growing(SectionKind::GroupHeader, "g", 420).AddField("hidden", {0, 0, 500, 283}, Cell).Visible =
      false;
  report.Growing(SectionKind::Detail, "d").AddField("row", {0, 0, 500, 283}, Cell);
  EXPECT_THAT(Places(ComposeSample(report, 5000)), ElementsAre("1:row@0"));
}

TEST(EngineSections, KeepTheirHeightIfTheyNeitherGrowNorShrink) {
  SampleReport report;
  report.Fixed(SectionKind::GroupHeader, "h", 855).AddField("hidden", {0, 0, 500, 283}, Cell).Visible = false;
  report.Growing(SectionKind::Detail, "d").AddField("row", {0, 0, 500, 283}, Cell);
  EXPECT_THAT(Places(ComposeSample(report, 5000)), ElementsAre("1:row@855"));
}

TEST(EngineSections, PrintWhatBeginsInsideWholeAndLeaveOutWhatBeginsBelow) {
  SampleReport report;
  Section& header = report.Fixed(SectionKind::GroupHeader, "h", 285);
  header.AddShape("overhang", {0, 200, 100, 400});
  header.AddShape("leftover", {0, 285, 100, 100});
  header.AddLine("line", 142, 0, 142, 425);
  report.Growing(SectionKind::Detail, "d").AddShape("row", {0, 0, 100, 100});
  const Document document = ComposeSample(report, 5000);
  EXPECT_THAT(Places(document), ElementsAre("1:overhang@200", "1:line@0", "1:row@285"));
  EXPECT_EQ(document.Items[0].Box.Height, 400);
}

TEST(EngineSections, PrintOnlyWhatBeginsAtTheirTopIfTheyHaveNoHeight) {
  SampleReport report;
  Section& header = report.Fixed(SectionKind::GroupHeader, "h", 0);
  header.AddShape("top", {0, 0, 100, 400});
  header.AddShape("leftover", {0, 1, 100, 400});
  EXPECT_THAT(Places(ComposeSample(report, 5000)), ElementsAre("1:top@0"));
}

TEST(EngineSections, ReadControlStatesWhenTheyAreLaidOut) {
  SampleReport report;
  Section& first = report.Growing(SectionKind::GroupHeader, "t");
  Section& second = report.Growing(SectionKind::GroupHeader, "g");
  Field& hidden = second.AddField("hidden", {0, 0, 500, 283}, Cell);
  first.Format = [&] { hidden.Visible = false; };
  report.Growing(SectionKind::Detail, "d").AddShape("row", {0, 0, 100, 100});
  EXPECT_THAT(Places(ComposeSample(report, 5000)), ElementsAre("1:row@0"));
}

TEST(EngineSections, ReadGroupKeepTogetherAfterFormat) {
  SampleReport outer;
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 10, 10});
  outer.Rows(2, [&](int) {
    auto inner = std::make_shared<SampleReport>();
    Section& title = inner->Growing(SectionKind::GroupHeader, "t");
    title.AddShape("title", {0, 0, 100, 100});
    title.Format = [&title] { title.GroupKeepTogether = Keep::All; };
    inner->Growing(SectionKind::Detail, "d").AddShape("row", {0, 0, 100, 100});
    inner->Rows(2);
    region.object = inner;
  });
  EXPECT_THAT(Places(ComposeSample(outer, 550)),
              ElementsAre("1:title@0", "1:row@100", "1:row@200", "2:title@0", "2:row@100", "2:row@200"));
}

TEST(EngineText, WrapsAtBreakOpportunities) {
  OneField one("one two three four five six seven");
  EXPECT_THAT(LinesOf(one.Compose(), "text"), ElementsAre("one two three four five six", "seven"));
}

TEST(EngineText, CutsAPieceWiderThanTheBoxAnywhere) {
  OneField one("0123456789012345678901234567", {0, 0, 1000, 283});
  // A digit is 94.5 twips: ten fit 1000 within the tolerance of 10.
  EXPECT_THAT(LinesOf(one.Compose(), "text"), ElementsAre("0123456789", "0123456789", "01234567"));
}

TEST(EngineText, TenTwipsOfWidthAreToleratedBeforeTextWraps) {
  // "1234.567" is 708.9 twips wide at 8.5 points.
  EXPECT_EQ(LinesOf(OneField("1234.567", {0, 0, 708, 283}).Compose(), "text").size(), 1U);
  EXPECT_EQ(LinesOf(OneField("1234.567", {0, 0, 699, 283}).Compose(), "text").size(), 1U);
  EXPECT_EQ(LinesOf(OneField("1234.567", {0, 0, 698, 283}).Compose(), "text").size(), 2U);
}

TEST(EngineText, ATrailingLineBreakAddsNoLineButAnEmptyLineInsideCounts) {
  EXPECT_EQ(Find(OneField("Items\r\n", {0, 0, 2000, 190}, Cell).Compose(), "text", ItemKind::Box).Box.Height,
            190);
  EXPECT_EQ(Find(OneField("a\r\n\r\nb", {0, 0, 2000, 190}, Cell).Compose(), "text", ItemKind::Box).Box.Height,
            570);
}

TEST(EngineText, LineEndsAloneAreNoBreaks) {
  EXPECT_EQ(LinesOf(OneField("a\nb\rc").Compose(), "text").size(), 1U);
}

TEST(EngineText, LinePitchIsWholeTwips) {
  EXPECT_EQ(LinePitch(8.5F), 190);
  EXPECT_EQ(LinePitch(9), 201);
  EXPECT_EQ(LinePitch(10), 223);
  EXPECT_EQ(LinePitch(11.5F), 257);
  EXPECT_EQ(LinePitch(12), 268);
  EXPECT_EQ(LinePitch(14), 313);
}

TEST(EngineText, StartsAtTheTopLoweredByHalfTheSpareHeightButAtMost46) {
  EXPECT_FLOAT_EQ(Find(OneField("a", {0, 0, 2000, 283}).Compose(), "text", ItemKind::Text).Box.Top, 46);
  EXPECT_FLOAT_EQ(Find(OneField("a", {0, 0, 2000, 570}).Compose(), "text", ItemKind::Text).Box.Top, 46);
  EXPECT_FLOAT_EQ(Find(OneField("a", {0, 0, 2000, 230}).Compose(), "text", ItemKind::Text).Box.Top, 20);
}

TEST(EngineText, HangsUpwardsFromTheBottomOfALowBoxThatCannotGrow) {
  EXPECT_FLOAT_EQ(
      Find(OneField("a", {0, 283, 2000, 142}, Plain, false).Compose(), "text", ItemKind::Text).Box.Top, 235);
}

TEST(EngineText, IsCondensedToALowBoxThatCannotGrow) {
  OneField one("Sincerely yours, yours", {0, 0, 1000, 283}, Plain, false);
  one.Detail.AddShape("beside", {1000, 0, 500, 283});
  const Document document = one.Compose();
  const Item item = Find(document, "text", ItemKind::Text);
  EXPECT_EQ(item.Box.Width, 1000);
  EXPECT_GT(document.Texts[item.Source].Advance, 1010);
}

TEST(EngineText, WrapsInABoxThatCannotGrowIfItHasRoomForTwoLines) {
  EXPECT_EQ(LinesOf(OneField("one two three", {0, 0, 700, 400}, Plain, false).Compose(), "text").size(), 2U);
}

TEST(EngineText, JoinsLinesWhereThereIsRoomForOneOnly) {
  EXPECT_THAT(LinesOf(OneField("a\r\nb", {0, 0, 700, 283}, Plain, false).Compose(), "text"),
              ElementsAre("a b"));
}

TEST(EngineText, IsSetInFromTheSideOfABorderedCellThatItIsAlignedTo) {
  constexpr CellStyle left{.Border = true};
  constexpr CellStyle right{.Alignment = Align::Right, .Border = true};
  constexpr CellStyle centre{.Alignment = Align::Centre, .Border = true};
  const float digits = 2 * 0.556F * 170;
  const Rect place{100, 0, 500, 283};
  EXPECT_FLOAT_EQ(Find(OneField("12", place, left).Compose(), "text", ItemKind::Text).Box.Left, 130);
  EXPECT_FLOAT_EQ(Find(OneField("12", place, right).Compose(), "text", ItemKind::Text).Box.Left,
                  600 - 30 - digits);
  EXPECT_FLOAT_EQ(Find(OneField("12", place, centre).Compose(), "text", ItemKind::Text).Box.Left,
                  100 + (500 - digits) / 2);
}

TEST(EngineText, TheInsetGivesWayBeforeTextWraps) {
  constexpr CellStyle left{.Border = true};
  const Document document = OneField("12", {0, 0, 200, 283}, left).Compose();
  EXPECT_NEAR(Find(document, "text", ItemKind::Text).Box.Left, 200 - 2 * 0.556 * 170, 0.01);
}

TEST(EngineText, RoomOnlyControlsPaintNothingButTakeTheirRoom) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddField("spacer", {0, 0, 2000, 141}, {.Size = 11.5F, .Filled = true, .RoomOnly = true}, "1");
  report.Growing(SectionKind::GroupFooter, "f").AddShape("below", {0, 0, 100, 100});
  EXPECT_THAT(Places(ComposeSample(report, 5000)), ElementsAre("1:below@257"));
}

TEST(EnginePaint, FollowsTheOrderOfTheLayout) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddShape("first", {0, 0, 100, 100}, true);
  detail.AddField("second", {0, 0, 100, 283}, Cell, "x");
  detail.AddCheckBox("third", {0, 0, 283, 283}).Value = true;
  EXPECT_THAT(Places(ComposeSample(report, 5000)),
              ElementsAre("1:first@0", "1:second@0", "1:x@46", "1:third@0"));
}

TEST(EnginePaint, PicturesFillTheirBoxOrKeepTheirProportion) {
  const auto placeOf = [](Fit fit) {
    SampleReport report;
    Image& image = report.Growing(SectionKind::Detail, "d").AddImage("image", {100, 50, 1000, 1000}, fit);
    image.Picture = std::make_shared<FakePicture>(400.0F, 200.0F);
    return Find(ComposeSample(report, 5000), "image", ItemKind::Picture).Box;
  };
  EXPECT_EQ(placeOf(Fit::Fill), (Rect{100, 50, 1000, 1000}));
  EXPECT_EQ(placeOf(Fit::KeepCentred), (Rect{100, 300, 1000, 500}));
  EXPECT_EQ(placeOf(Fit::KeepTopRight), (Rect{100, 50, 1000, 500}));
}

TEST(EnginePaint, APictureIsInTheDocumentOnceHoweverOftenItIsShown) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  const PicturePtr logo = std::make_shared<FakePicture>(400.0F, 200.0F);
  const PicturePtr graph = std::make_shared<FakePicture>(400.0F, 200.0F);
  for (const PicturePtr& picture : {logo, graph, logo})
    detail.AddImage("image", {0, 0, 100, 100}).Picture = picture;
  const Document document = ComposeSample(report, 5000);
  EXPECT_THAT(document.Pictures, ElementsAre(logo, graph));
  std::vector<std::uint32_t> sources;
  for (const Item& item : document.Items) sources.push_back(item.Source);
  EXPECT_THAT(sources, ElementsAre(0U, 1U, 0U));
}

TEST(EnginePaint, AnEmptyImagePaintsNothingButTakesItsRoom) {
  SampleReport report;
  report.Growing(SectionKind::GroupHeader, "h").AddImage("image", {0, 0, 100, 700});
  report.Growing(SectionKind::Detail, "d").AddShape("row", {0, 0, 100, 100});
  EXPECT_THAT(Places(ComposeSample(report, 5000)), ElementsAre("1:row@700"));
}

TEST(EnginePaint, APictureHigherThanThePaperIsMadeToFit) {
  SampleReport report;
  Image& image = report.Growing(SectionKind::Detail, "d").AddImage("image", {0, 0, 1000, 2000}, Fit::Fill);
  image.Picture = std::make_shared<FakePicture>(400.0F, 800.0F);
  const Document document = ComposeSample(report, 1000);
  EXPECT_EQ(document.Pages.size(), 1U);
  EXPECT_EQ(document.Items[0].Box, (Rect{0, 0, 500, 1000}));
}

TEST(EnginePaint, NestedReportsAreShiftedByTheLeftOfTheirControl) {
  SampleReport outer;
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {250, 0, 10, 10});
  auto inner = std::make_shared<SampleReport>();
  inner->Growing(SectionKind::Detail, "d").AddShape("row", {40, 0, 100, 100});
  region.object = inner;
  PageSetup setup = PaperOf(1000);
  setup.Left = 1440;
  const Document document = Compose(outer, setup, ArialMeasurer());
  EXPECT_EQ(document.Items[0].Box.Left, 1440 + 250 + 40);
}

}  // namespace
}  // namespace tarvis
