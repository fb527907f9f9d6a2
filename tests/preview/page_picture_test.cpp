// What the screen shows of a page, looked at as pixels.
#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <set>

#include "preview/document_builder.h"
#include "preview/pages/page_pictures.h"
#include "preview/sample_picture.h"

namespace tarvis {
namespace {

constexpr Color Grey = 0xE0E0E0;

QImage Screen(const Document& document, int resolution) {
  const int width =
      static_cast<int>(std::lround(static_cast<double>(document.Setup.Width) * resolution / 1440));
  return RenderPage(document, 0, width, 0, PagePixelHeight(document, width));
}

QColor PixelAt(const QImage& page, double x, double y) {
  return page.pixelColor(static_cast<int>(x / 15), static_cast<int>(y / 15));
}

TEST(PagePicture, ALaterFillCoversWhatLiesBelow) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Text("HHHHHHHH", 1440, 1440, 20, true)
                            .Box({1400, 1400, 6000, 600}, Grey, 0)
                            .Build();
  const QImage page = Screen(*document, 96);
  for (int x = 1500; x < 4000; x += 15) EXPECT_EQ(PixelAt(page, x, 1700).rgb(), qRgb(0xE0, 0xE0, 0xE0));
}

TEST(PagePicture, TextOverAFillIsSeen) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Box({1400, 1400, 6000, 600}, Grey, 0)
                            .Text("HHHHHHHH", 1440, 1440, 20, true)
                            .Build();
  const QImage page = Screen(*document, 96);
  int dark = 0;
  for (int x = 1500; x < 4000; x += 15) dark += PixelAt(page, x, 1700).lightness() < 100;
  EXPECT_GT(dark, 20);
}

TEST(PagePicture, BordersAreOneSharpPixelAtFullSize) {
  const auto document = DocumentBuilder().Page().Box({1500, 1500, 3000, 300}, White).Build();
  const QImage page = Screen(*document, 96);
  const int middle = 1650 / 15;
  int dark = 0;
  for (int x = 90; x < 110; ++x) {
    const int grey = qGray(page.pixel(x, middle));
    EXPECT_TRUE(grey == 0 || grey == 255) << x;
    dark += grey == 0;
  }
  EXPECT_EQ(dark, 1);
}

TEST(PagePicture, PiecesOfAThinLineThatMeetAreOneEvenLine) {
  DocumentBuilder builder;
  builder.Page();
  for (int top = 1000; top < 4000; top += 283) builder.Line({2000, static_cast<float>(top), 0, 283});
  builder.Line({2000, 1500, 0, 1500});
  const auto document = builder.Build();
  const int width = 400;  // half size: a line is thinner than a pixel
  const QImage page = RenderPage(*document, 0, width, 0, PagePixelHeight(*document, width));
  const double toPixels = width / static_cast<double>(document->Setup.Width);
  const int x = static_cast<int>(2000 * toPixels);
  std::set<int> greys;
  for (int y = static_cast<int>(1100 * toPixels); y < static_cast<int>(3900 * toPixels); ++y) {
    greys.insert(std::min(qGray(page.pixel(x, y)), qGray(page.pixel(x - 1, y))));
  }
  ASSERT_EQ(greys.size(), 1U);
  EXPECT_LT(*greys.begin(), 200);
  EXPECT_GT(*greys.begin(), 50);
}

TEST(PagePicture, ClippedTextEndsAtItsBox) {
  const auto document = DocumentBuilder().Page().NarrowText("MMMMMMMMMMMMMMMM", 1440, 1440, 600).Build();
  const QImage page = Screen(*document, 96);
  for (int x = (1440 + 600) / 15 + 2; x < 400; ++x) EXPECT_EQ(qGray(page.pixel(x, 1540 / 15)), 255) << x;
}

TEST(PagePicture, APageOfOnePictureOnlyShowsIt) {
  const auto document =
      DocumentBuilder().Page().Picture(std::make_shared<SamplePicture>(), {0, 0, 11906, 16838}).Build();
  EXPECT_EQ(PixelAt(Screen(*document, 96), 10000, 2000).lightness(), 200);
}

}  // namespace
}  // namespace tarvis
