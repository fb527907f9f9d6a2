// Bands that are taller than a page: lines of text, frames and pictures at the cut.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/engine/text_cache.h"
#include "support/fake_pictures.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

constexpr CellStyle Large{.Size = 14};  // line pitch 313
constexpr const char* FiveLines = "a0\r\na1\r\na2\r\na3\r\na4";

// The items of one control, each with its page.
std::vector<std::pair<int, Item>> ItemsOf(const Document& document, const std::string& control) {
  std::vector<std::pair<int, Item>> items;
  for (std::size_t page = 0; page < document.Pages.size(); ++page) {
    const Page& range = document.Pages[page];
    for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
      const Item& item = document.Items[index];
      if (document.Names[item.Control] == control) items.emplace_back(static_cast<int>(page) + 1, item);
    }
  }
  return items;
}

struct TallRow : testing::Test {
  Image& AddPicture(const Rect& place) {
    Image& image = Detail.AddImage("picture", place, Fit::Fill);
    image.Picture = std::make_shared<FakePicture>(400.0F, 400.0F);
    return image;
  }
  SampleReport Report;
  Section& Detail = Report.Growing(SectionKind::Detail, "d");
};

TEST_F(TallRow, EachLineGoesWhereItFitsWhateverIsBesideIt) {
  Detail.AddField("a", {0, 0, 1000, 100}, Plain, FiveLines);
  Detail.AddField("b", {1000, 0, 1000, 100}, Large, "b0\r\nb1\r\nb2");
  // Each straight cut above the foot of the page would cross a line of one column or the other.
  EXPECT_THAT(Places(ComposeSample(Report, 500)), ElementsAre("1:a0@0", "1:a1@190", "1:b0@0", "2:a2@67",
                                                              "2:a3@257", "2:b1@0", "3:a4@134", "3:b2@0"));
}

std::vector<std::string> PlacesOfFiveLines(float page) {
  SampleReport report;
  report.Growing(SectionKind::Detail, "d").AddField("a", {0, 0, 1000, 100}, Plain, FiveLines);
  return Places(ComposeSample(report, page));
}

TEST(TallRows, LinesThatEndAtTheFootOfThePageStay) {
  EXPECT_THAT(PlacesOfFiveLines(570), ElementsAre("1:a0@0", "1:a1@190", "1:a2@380", "2:a3@0", "2:a4@190"));
  EXPECT_THAT(PlacesOfFiveLines(568), ElementsAre("1:a0@0", "1:a1@190", "2:a2@0", "2:a3@190", "3:a4@0"));
}

TEST_F(TallRow, TheFrameOfACutCellStaysOpenAtTheCut) {
  Detail.AddField("text", {0, 0, 1000, 100}, Cell, FiveLines);
  std::vector<std::string> frames;
  for (const auto& [page, item] : ItemsOf(ComposeSample(Report, 500), "text")) {
    if (item.Kind != ItemKind::Box) continue;
    frames.push_back(std::to_string(page) + ":" + std::to_string(static_cast<int>(item.Box.Top)) + "+" +
                     std::to_string(static_cast<int>(item.Box.Height)) + (item.OpenTop ? " open top" : "") +
                     (item.OpenBottom ? " open bottom" : ""));
  }
  EXPECT_THAT(frames, ElementsAre("1:0+500 open bottom", "2:0+500 open top open bottom", "3:0+190 open top"));
}

TEST_F(TallRow, ACellWhoseTextMovesOnDrawsNoEmptyFrame) {
  Detail.AddField("above", {0, 0, 1000, 380}, Cell, "a\r\nb");
  Detail.AddField("moved", {0, 380, 500, 283}, Cell, "c");
  Detail.AddField("beside", {500, 380, 500, 283}, Cell);
  EXPECT_THAT(Places(ComposeSample(Report, 600)),
              ElementsAre("1:above@0", "1:a@0", "1:b@190", "2:moved@0", "2:c@46", "2:beside@0"));
}

TEST_F(TallRow, WhatIsBelowAShrunkenPictureFlowsOn) {
  AddPicture({0, 0, 1000, 800});
  Detail.AddLabel("legend", {0, 900, 2000, 283}, "[Cursor Data]", Plain);
  Detail.AddShape("shape", {0, 1200, 300, 100});
  const Document document = ComposeSample(Report, 500);
  EXPECT_EQ(ItemsOf(document, "picture")[0].second.Box, (Rect{0, 0, 625, 500}));
  const auto [page, legend] = ItemsOf(document, "legend")[0];
  EXPECT_EQ(page, 2);
  EXPECT_EQ(legend.Box.Top, 0);
  EXPECT_EQ(legend.Box.Height, LinePitch(8.5F));
  EXPECT_EQ(ItemsOf(document, "shape")[0].second.Box, (Rect{0, 254, 300, 100}));
  EXPECT_EQ(document.Pages.size(), 2U);
}

TEST_F(TallRow, WhatIsBelowAShrunkenPictureInOneFrameWithItKeepsItsDistance) {
  AddPicture({100, 0, 1000, 800});
  Detail.AddField("legend", {0, 900, 2000, 190}, Plain, "a");
  Detail.AddShape("frame", {0, 0, 1200, 1300});
  const Document document = ComposeSample(Report, 500);
  EXPECT_EQ(ItemsOf(document, "picture")[0].second.Box, (Rect{100, 0, 625, 500}));
  const auto [page, legend] = ItemsOf(document, "legend")[0];
  EXPECT_EQ(page, 2);
  EXPECT_EQ(legend.Box.Top, 100);
  const auto frame = ItemsOf(document, "frame");
  ASSERT_EQ(frame.size(), 2U);
  EXPECT_EQ(frame[1].second.Box, (Rect{0, 0, 1200, 500}));
  EXPECT_EQ(document.Pages.size(), 2U);
}

TEST_F(TallRow, AFrameThatEndsBesideAShrunkenPictureKeepsItsHeight) {
  AddPicture({0, 0, 1000, 800});
  Detail.AddShape("frame", {1100, 0, 300, 300});
  const Document document = ComposeSample(Report, 500);
  EXPECT_EQ(ItemsOf(document, "picture")[0].second.Box, (Rect{0, 0, 625, 500}));
  EXPECT_EQ(ItemsOf(document, "frame")[0].second.Box, (Rect{1100, 0, 300, 300}));
}

TEST_F(TallRow, TheNextRowFollowsRightBelowTheLegendOfAShrunkenPicture) {
  Control& picture = AddPicture({0, 0, 1000, 800});
  Control& legend = Detail.AddField("legend", {0, 800, 1000, 190}, Plain, "legend");
  Control& next = Detail.AddField("next", {0, 0, 1000, 190}, Plain, "next");
  Report.Rows(2, [&](int row) {
    picture.Visible = legend.Visible = row == 0;
    next.Visible = row == 1;
  });
  EXPECT_THAT(Places(ComposeSample(Report, 500)), ElementsAre("1:picture@0", "2:legend@0", "2:next@190"));
}

TEST_F(TallRow, WhatLiesOnAPictureShrinksWithIt) {
  AddPicture({100, 200, 1000, 1000});
  Detail.AddShape("box", {300, 400, 200, 200}, true);
  Detail.AddLabel("text", {300, 400, 500, 283}, "12", Plain);
  Detail.AddShape("frame", {0, 100, 1200, 1200});
  const Document document = ComposeSample(Report, 700);
  // Half as high: from 200 to the foot of the page.
  EXPECT_EQ(ItemsOf(document, "picture")[0].second.Box, (Rect{100, 200, 500, 500}));
  EXPECT_EQ(ItemsOf(document, "box")[0].second.Box, (Rect{200, 300, 100, 100}));
  const Item text = ItemsOf(document, "text")[0].second;
  EXPECT_EQ(text.Box.Left, 200);
  EXPECT_EQ(text.Box.Top, 323);
  EXPECT_EQ(document.Styles[document.Texts[text.Source].Style].Size, 4.25F);
  const auto frame = ItemsOf(document, "frame");
  ASSERT_EQ(frame.size(), 2U);
  EXPECT_EQ(frame[0].second.Box, (Rect{0, 100, 1200, 600}));
  EXPECT_EQ(frame[1].second.Box, (Rect{0, 0, 1200, 100}));
}

TEST_F(TallRow, APictureBelowAnotherMovesWholeIfItFitsThere) {
  AddPicture({0, 0, 1000, 400});
  AddPicture({0, 400, 1000, 400});
  const auto pictures = ItemsOf(ComposeSample(Report, 700), "picture");
  EXPECT_EQ(pictures[0].second.Box, (Rect{0, 0, 1000, 400}));
  EXPECT_EQ(pictures[1].first, 2);
  EXPECT_EQ(pictures[1].second.Box, (Rect{0, 0, 1000, 400}));
}

// "page: top + height" of a picture `height` high below a header and a caption.
std::string PlaceUnderHeader(float height) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::GroupHeader, "h"), "head", 300);
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddLabel("caption", {0, 0, 1000, 190}, "caption", Plain);
  detail.AddImage("picture", {0, 200, 1000, height}, Fit::Fill).Picture =
      std::make_shared<FakePicture>(400.0F, 400.0F);
  const Document document = ComposeSample(report, 1000);
  const auto [page, item] = ItemsOf(document, "picture")[0];
  return std::to_string(page) + ": " + std::to_string(static_cast<int>(item.Box.Top)) + "+" +
         std::to_string(static_cast<int>(item.Box.Height));
}

TEST(TallRows, APictureUnderHeadersShrinksByHalfAtMostAndElseGoesToTheNextPage) {
  EXPECT_EQ(PlaceUnderHeader(1000), "1: 500+500");
  EXPECT_EQ(PlaceUnderHeader(1002), "2: 200+800") << "its caption goes with it";
}

TEST_F(TallRow, BlankRoomAboveTheCutIsNotCarriedOver) {
  Detail.AddLabel("first", {0, 0, 1000, 283}, "a", Plain);
  Detail.AddLabel("second", {0, 900, 1000, 283}, "b", Plain);
  EXPECT_THAT(Places(ComposeSample(Report, 500)), ElementsAre("1:a@46", "2:b@0"));
}

TEST_F(TallRow, ALineHigherThanThePageIsPlacedAllTheSame) {
  Detail.AddField("text", {0, 0, 1000, 100}, Plain, "a\r\nb");
  EXPECT_THAT(Places(ComposeSample(Report, 100)), ElementsAre("1:a@0", "1:b@190"));
}

}  // namespace
}  // namespace tarvis
