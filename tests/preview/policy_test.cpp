// The plain arithmetic of the view: where pages stand, what is rendered and kept, and places visited.
#include <gtest/gtest.h>

#include "preview/pages/page_layout.h"
#include "preview/pages/place_history.h"
#include "preview/pages/render_policy.h"

namespace tarvis {
namespace {

PageLayout A4Pages(int count) {
  PageLayout layout;
  layout.SetPages(count, 11906, 16838);
  layout.SetViewport({900, 600});
  layout.SetZoom(ZoomMode::Factor, 1);
  return layout;
}

TEST(PageLayout, a_page_at_100_percent_is_15_twips_to_a_pixel) {
  EXPECT_NEAR(A4Pages(3).PageSize().width(), 793.7, 0.1);
}

TEST(PageLayout, places_and_heights_lead_back_to_each_other) {
  const PageLayout layout = A4Pages(700);
  const PagePlace place = layout.PlaceAt(layout.YOf({612, 5000}));
  EXPECT_EQ(place.Page, 612);
  EXPECT_NEAR(place.Top, 5000, 0.01);
}

TEST(PageLayout, the_space_between_pages_belongs_to_the_nearer_one) {
  const PageLayout layout = A4Pages(3);
  const double end = layout.PageRect(0).bottom();
  EXPECT_EQ(layout.PageAt(end + 1), 0);
  EXPECT_EQ(layout.PageAt(end + PageLayout::Margin - 1), 1);
}

TEST(PageLayout, only_pages_that_show_are_told) {
  const PageLayout layout = A4Pages(10);
  const PageLayout::Range range =
      layout.PagesBetween(layout.PageRect(3).top() + 10, layout.PageRect(4).top() + 10);
  EXPECT_EQ(range.First, 3);
  EXPECT_EQ(range.Last, 4);
}

TEST(PageLayout, a_single_page_smaller_than_the_view_is_centred) {
  PageLayout layout = A4Pages(3);
  layout.SetContinuous(false);
  layout.SetZoom(ZoomMode::Factor, 0.25);
  const QRectF page = layout.PageRect(0);
  EXPECT_NEAR(page.center().x(), 450, 1);
  EXPECT_NEAR(page.center().y(), 300, 1);
}

TEST(PageLayout, zoom_stays_within_its_bounds) {
  PageLayout layout = A4Pages(1);
  layout.SetZoom(ZoomMode::Factor, 100);
  EXPECT_EQ(layout.Zoom(), PageLayout::GreatestZoom);
  layout.SetViewport({30, 30});
  layout.SetZoom(ZoomMode::FitPage, 1);
  EXPECT_EQ(layout.Zoom(), PageLayout::LeastZoom);
}

TEST(PageLayout, without_pages_there_is_no_place) {
  PageLayout layout;
  layout.SetPages(0, 11906, 16838);
  layout.SetViewport({900, 600});
  EXPECT_EQ(layout.PageAt(100), -1);
  EXPECT_LT(layout.PagesBetween(0, 600).Last, layout.PagesBetween(0, 600).First);
}

TEST(RenderPolicy, what_shows_comes_first_then_one_page_each_way) {
  const std::vector<ShownPart> shown{{4, 500, 1122}, {5, 0, 400}};
  const std::vector<Strip> wanted = WantedStrips(shown, 794, 1123, 10);
  EXPECT_EQ(wanted, (std::vector<Strip>{{4, 0, 794}, {5, 0, 794}, {6, 0, 794}, {3, 0, 794}}));
}

TEST(RenderPolicy, there_is_no_neighbour_before_the_first_and_after_the_last_page) {
  const std::vector<ShownPart> shown{{0, 0, 1122}};
  EXPECT_EQ(WantedStrips(shown, 794, 1123, 1), (std::vector<Strip>{{0, 0, 794}}));
  EXPECT_TRUE(WantedStrips({}, 794, 1123, 0).empty());
}

TEST(RenderPolicy, large_pages_are_cut_into_strips_and_only_those_that_show_are_wanted) {
  const StripCut cut = CutIntoStrips(6350, 8980);
  EXPECT_LE(cut.Height * 6350, 4'000'000);
  EXPECT_GE(cut.Height * cut.Count, 8980);
  const std::vector<ShownPart> shown{{2, 0, cut.Height - 1}};
  EXPECT_EQ(WantedStrips(shown, 6350, 8980, 5),
            (std::vector<Strip>{{2, 0, 6350}, {2, 1, 6350}, {1, cut.Count - 1, 6350}}));
}

TEST(RenderPolicy, the_longest_unused_strip_goes_first_until_the_rest_fits) {
  const std::vector<CachedStrip> cached{{{0, 0, 100}, 40, 3}, {{1, 0, 100}, 40, 1}, {{2, 0, 100}, 40, 2}};
  EXPECT_EQ(Evict(cached, {}, 80), (std::vector<Strip>{{1, 0, 100}}));
  EXPECT_EQ(Evict(cached, {}, 120), std::vector<Strip>{});
}

TEST(RenderPolicy, what_is_wanted_stays_even_beyond_the_budget) {
  const std::vector<CachedStrip> cached{{{0, 0, 100}, 40, 1}, {{1, 0, 100}, 40, 2}};
  const std::vector<Strip> wanted{{0, 0, 100}};
  EXPECT_EQ(Evict(cached, wanted, 10), (std::vector<Strip>{{1, 0, 100}}));
}

TEST(RenderPolicy, the_nearest_larger_picture_stands_in_else_the_largest) {
  const std::vector<int> widths{100, 400, 900};
  EXPECT_EQ(StandIn(widths, 300), 400);
  EXPECT_EQ(StandIn(widths, 400), 400);
  EXPECT_EQ(StandIn(widths, 1000), 900);
  EXPECT_EQ(StandIn({}, 300), 0);
}

TEST(PlaceHistory, a_new_jump_forgets_what_was_ahead) {
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
