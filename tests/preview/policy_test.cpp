// The plain arithmetic of the view: where pages are, what is rendered and kept, and places visited.
#include <gtest/gtest.h>

#include "preview/pages/page_layout.h"
#include "preview/pages/place_history.h"
#include "preview/pages/render_policy.h"

namespace tarvis {
namespace {

PageLayout A4Pages(int count) {
  PageLayout layout;
  layout.SetPages(count, {11906, 16838});
  layout.SetViewport({900, 600});
  layout.SetZoom(ZoomMode::Factor, 1);
  return layout;
}

TEST(PageLayout, APageAt100PercentIs15TwipsToAPixel) {
  EXPECT_NEAR(A4Pages(3).PageSize().width(), 793.7, 0.1);
}

TEST(PageLayout, PlacesAndHeightsLeadBackToEachOther) {
  const PageLayout layout = A4Pages(700);
  const PagePlace place = layout.PlaceAt(layout.YOf({612, 5000}));
  EXPECT_EQ(place.Page, 612);
  EXPECT_NEAR(place.Top, 5000, 0.01);
}

TEST(PageLayout, TheSpaceBetweenPagesBelongsToTheNearerOne) {
  const PageLayout layout = A4Pages(3);
  const double end = layout.PageRect(0).bottom();
  EXPECT_EQ(layout.PageAt({450, end + 1}), 0);
  EXPECT_EQ(layout.PageAt({450, end + PageLayout::Margin - 1}), 1);
}

TEST(PageLayout, PagesThatShowAndNoOthersAreListed) {
  const PageLayout layout = A4Pages(10);
  const PageLayout::Range range =
      layout.PagesBetween(layout.PageRect(3).top() + 10, layout.PageRect(4).top() + 10);
  EXPECT_EQ(range.First, 3);
  EXPECT_EQ(range.Last, 4);
}

TEST(PageLayout, ASinglePageSmallerThanTheViewIsCentred) {
  PageLayout layout = A4Pages(3);
  layout.SetContinuous(false);
  layout.SetZoom(ZoomMode::Factor, 0.25);
  const QRectF page = layout.PageRect(0);
  EXPECT_NEAR(page.center().x(), 450, 1);
  EXPECT_NEAR(page.center().y(), 300, 1);
}

TEST(PageLayout, PutsFacingPagesSideBySide) {
  PageLayout layout = A4Pages(5);
  layout.SetColumns(Columns::Two);
  EXPECT_EQ(layout.PageRect(0).top(), layout.PageRect(1).top());
  EXPECT_EQ(layout.PageRect(1).left() - layout.PageRect(0).right(), PageLayout::Margin);
  EXPECT_GT(layout.PageRect(2).top(), layout.PageRect(0).bottom());
  EXPECT_EQ(layout.PageAt(layout.PageRect(3).center()), 3);
  EXPECT_EQ(layout.PageAt({5000, layout.PageRect(4).center().y()}), 4) << "there is no page beside the last";
  layout.SetZoom(ZoomMode::FitWidth, 1);
  EXPECT_NEAR(layout.PageRect(1).right(), 900 - PageLayout::Margin, 1);
}

TEST(PageLayout, PutsAsManyPagesSideBySideAsFit) {
  PageLayout layout = A4Pages(50);
  layout.SetColumns(Columns::AsManyAsFit);
  layout.SetZoom(ZoomMode::Factor, 0.25);  // pages of 198 pixels
  EXPECT_EQ(layout.ColumnCount(), 4);
  EXPECT_EQ(layout.PagesBetween(layout.PageRect(4).top(), layout.PageRect(4).bottom() - 1).First, 4);
  EXPECT_EQ(layout.PagesBetween(layout.PageRect(4).top(), layout.PageRect(4).bottom() - 1).Last, 7);
  EXPECT_LE(layout.PageRect(3).right(), 900);
  layout.SetZoom(ZoomMode::Factor, 2);
  EXPECT_EQ(layout.ColumnCount(), 1);
}

TEST(PageLayout, KeepsTheColumnOfThePageThatWasGoneTo) {
  PageLayout layout = A4Pages(9);
  layout.SetColumns(Columns::Two);
  layout.SetSinglePage(3);
  EXPECT_EQ(layout.PlaceAt(layout.YOf({3, 2000})).Page, 3);
  EXPECT_EQ(layout.PlaceAt(layout.YOf({4, 2000})).Page, 5);
  EXPECT_EQ(layout.PlaceAt(layout.YOf({8, 2000})).Page, 8);
}

TEST(PageLayout, ZoomStaysWithinItsBounds) {
  PageLayout layout = A4Pages(1);
  layout.SetZoom(ZoomMode::Factor, 100);
  EXPECT_EQ(layout.Zoom(), PageLayout::GreatestZoom);
  layout.SetViewport({30, 30});
  layout.SetZoom(ZoomMode::FitPage, 1);
  EXPECT_EQ(layout.Zoom(), PageLayout::LeastZoom);
}

TEST(PageLayout, ThereIsNoPlaceWithoutPages) {
  PageLayout layout;
  layout.SetPages(0, {11906, 16838});
  layout.SetViewport({900, 600});
  EXPECT_EQ(layout.PageAt({450, 100}), -1);
  EXPECT_LT(layout.PagesBetween(0, 600).Last, layout.PagesBetween(0, 600).First);
}

TEST(RenderPolicy, WhatShowsComesFirstThenOnePageEachWay) {
  const std::vector<ShownPart> shown{{4, 500, 1122}, {5, 0, 400}};
  const std::vector<Strip> wanted = WantedStrips(shown, 794, 1123, 10);
  EXPECT_EQ(wanted, (std::vector<Strip>{{4, 0, 794}, {5, 0, 794}, {6, 0, 794}, {3, 0, 794}}));
}

TEST(RenderPolicy, ThereIsNoNeighbourBeforeTheFirstAndAfterTheLastPage) {
  const std::vector<ShownPart> shown{{0, 0, 1122}};
  EXPECT_EQ(WantedStrips(shown, 794, 1123, 1), (std::vector<Strip>{{0, 0, 794}}));
  EXPECT_TRUE(WantedStrips({}, 794, 1123, 0).empty());
}

TEST(RenderPolicy, LargePagesAreCutIntoStripsAndOnlyThoseThatShowAreWanted) {
  const StripCut cut = CutIntoStrips(6350, 8980);
  EXPECT_LE(cut.Height * 6350, 1'000'000);
  EXPECT_GE(cut.Height * cut.Count, 8980);
  const std::vector<ShownPart> shown{{2, 0, cut.Height - 1}};
  EXPECT_EQ(WantedStrips(shown, 6350, 8980, 5),
            (std::vector<Strip>{{2, 0, 6350}, {2, 1, 6350}, {1, cut.Count - 1, 6350}}));
}

TEST(RenderPolicy, APageAtFullSizeIsNotCut) {
  EXPECT_EQ(CutIntoStrips(794, 1123).Count, 1);
}

// On a screen of 3840 by 2160, where a page is as wide as the window.
TEST(RenderPolicy, WhatALargeScreenWantsKeepsToTheBudget) {
  constexpr int Width = 3640, Height = 5148, Seen = 2070;
  const StripCut cut = CutIntoStrips(Width, Height);
  for (int top = 0; top + Seen < Height; top += 10) {
    const std::vector<ShownPart> shown{{3, top, top + Seen}};
    const auto count = static_cast<std::int64_t>(WantedStrips(shown, Width, Height, 9).size());
    EXPECT_LE(count * cut.Height * Width * 4, 44 * 1024 * 1024) << top;
  }
}

TEST(RenderPolicy, TheLongestUnusedStripGoesFirstUntilTheRestFits) {
  const std::vector<CachedStrip> cached{{{0, 0, 100}, 40, 3}, {{1, 0, 100}, 40, 1}, {{2, 0, 100}, 40, 2}};
  EXPECT_EQ(Evict(cached, {}, 80), (std::vector<Strip>{{1, 0, 100}}));
  EXPECT_EQ(Evict(cached, {}, 120), std::vector<Strip>{});
}

TEST(RenderPolicy, WhatIsWantedStaysEvenBeyondTheBudget) {
  const std::vector<CachedStrip> cached{{{0, 0, 100}, 40, 1}, {{1, 0, 100}, 40, 2}};
  const std::vector<Strip> wanted{{0, 0, 100}};
  EXPECT_EQ(Evict(cached, wanted, 10), (std::vector<Strip>{{1, 0, 100}}));
}

TEST(RenderPolicy, TheNearestLargerPictureIsShownMeanwhileElseTheLargest) {
  const std::vector<int> widths{100, 400, 900};
  EXPECT_EQ(SubstituteWidth(widths, 300), 400);
  EXPECT_EQ(SubstituteWidth(widths, 400), 400);
  EXPECT_EQ(SubstituteWidth(widths, 1000), 900);
  EXPECT_EQ(SubstituteWidth({}, 300), 0);
}

TEST(PlaceHistory, ANewJumpForgetsWhatWasAhead) {
  PlaceHistory history;
  history.Leave({1, 0});
  history.Leave({2, 0});
  EXPECT_EQ(history.Back({3, 0}), (PagePlace{2, 0}));
  EXPECT_TRUE(history.CanGoForward());
  history.Leave({2, 0});
  EXPECT_FALSE(history.CanGoForward());
  EXPECT_EQ(history.Back({9, 0}), (PagePlace{2, 0}));
  EXPECT_EQ(history.Back({2, 0}), (PagePlace{1, 0}));
  EXPECT_EQ(history.Back({1, 0}), std::nullopt);
}

}  // namespace
}  // namespace tarvis
