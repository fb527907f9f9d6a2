// What is painted, looked at as pixels: the screen by itself and beside the PDF.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>
#include <cmath>
#include <cstdlib>
#include <set>

#include "preview/document_builder.h"
#include "preview/page_pictures.h"
#include "preview/pdf_export.h"
#include "preview/pdf_file.h"
#include "preview/sample_picture.h"

namespace tarvis {
namespace {

// Difference in mean grey from which on ink is missing or too much; letters on a screen stand on whole
// pixels, half a pixel from where they should at most.
double LeastSeen(int resolution) {
  return resolution < 200 ? 30 : 16;
}

constexpr Color Grey = 0xE0E0E0;

QImage Screen(const Document& document, int resolution) {
  const int width =
      static_cast<int>(std::lround(static_cast<double>(document.Setup.Width) * resolution / 1440));
  return RenderPage(document, 0, width, 0, PagePixelHeight(document, width));
}

QImage Pdf(const Document& document, int resolution) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("out.pdf"));
  EXPECT_EQ(ExportPdf(document, path, {}, [](int, int) { return true; }), QString());
  const QString picture = folder.filePath(QStringLiteral("page"));
  RunTool("pdftoppm", {QStringLiteral("-r"), QString::number(resolution), QStringLiteral("-png"),
                       QStringLiteral("-singlefile"), path, picture});
  return QImage(picture + QStringLiteral(".png"));
}

// Means around each of `values` with weights that fall off to `side` neighbours on both sides.
void Smooth(std::vector<double>& values, std::size_t side) {
  for (int pass = 0; pass < 2; ++pass) {
    const std::vector<double> before = values;
    const auto at = [&](std::size_t index) { return before[std::min(index, before.size() - 1)]; };
    double sum = 0;
    for (std::size_t index = 0; index < side; ++index) sum += at(index);
    for (std::size_t index = 0; index < values.size(); ++index) {
      values[index] = sum / static_cast<double>(side);
      sum += at(index + side) - at(index);
    }
  }
}

// Greatest difference of two pages in mean grey around a point, about a tenth of an inch wide. Letters and
// lines may differ in smoothing, but everywhere there must be the same amount of ink.
double GreatestDifference(const QImage& a, const QImage& b, int resolution) {
  const auto side = static_cast<std::size_t>(resolution / 10);
  const auto width = static_cast<std::size_t>(std::min(a.width(), b.width()));
  std::vector<std::vector<double>> columns(width);
  for (int y = 0; y < std::min(a.height(), b.height()); ++y) {
    std::vector<double> row;
    for (int x = 0; x < static_cast<int>(width); ++x)
      row.push_back(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    Smooth(row, side);
    for (std::size_t x = 0; x < width; ++x) columns[x].push_back(row[x]);
  }
  double greatest = 0;
  for (std::vector<double>& column : columns) {
    Smooth(column, side);
    for (const double difference : column) greatest = std::max(greatest, std::abs(difference));
  }
  return greatest;
}

DocumentBuilder SamplePage() {
  DocumentBuilder builder;
  builder.Page().Text("Parameter List", 1440, 1040, 12, true);
  builder.Box({1440, 1500, 3000, 420}, Grey).Text("Title cell", 1600, 1560);
  builder.Row({"Pn100", "Speed Loop Gain", "40.0", "Hz"}, 2016).Row({"Pn101", "一覧", "1", ""}, 2304);
  builder.NarrowText("Encoder Dividing Ratio", 1440, 3000, 1200)
      .NarrowText("Encoder Dividing Ratio", 1440, 3500, 500);
  builder.Line({1440, 4032, 7200, 0}, 3).Line({1440, 4320, 2880, 1440});
  builder.Tick({6000, 4500, 240, 240}, true).Tick({6000, 5000, 240, 240}, false);
  builder.Picture(std::make_shared<SamplePicture>(), {1440, 7200, 4320, 2880});
  return builder;
}

class SamePages : public testing::TestWithParam<int> {};

TEST_P(SamePages, pdf_and_screen_hold_the_same_ink_everywhere) {
  const auto document = SamplePage().Build();
  const QImage screen = Screen(*document, GetParam());
  const QImage pdf = Pdf(*document, GetParam());
  ASSERT_NEAR(screen.width(), pdf.width(), 1);
  ASSERT_NEAR(screen.height(), pdf.height(), 1);
  EXPECT_LT(GreatestDifference(screen, pdf, GetParam()), LeastSeen(GetParam()));
}

TEST_P(SamePages, a_missing_word_would_be_seen) {
  const auto document = SamplePage().Build();
  const auto other = SamplePage().Text("Hz", 1500, 12000, 12, true).Build();
  EXPECT_GT(GreatestDifference(Screen(*document, GetParam()), Pdf(*other, GetParam()), GetParam()),
            LeastSeen(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Resolutions, SamePages, testing::Values(96, 300));

QColor PixelAt(const QImage& page, double x, double y) {
  return page.pixelColor(static_cast<int>(x / 15), static_cast<int>(y / 15));
}

TEST(PagePicture, a_later_fill_covers_what_lies_below) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Text("HHHHHHHH", 1440, 1440, 20, true)
                            .Box({1400, 1400, 6000, 600}, Grey, 0)
                            .Build();
  const QImage page = Screen(*document, 96);
  for (double x = 1500; x < 4000; x += 15) EXPECT_EQ(PixelAt(page, x, 1700).rgb(), qRgb(0xE0, 0xE0, 0xE0));
}

TEST(PagePicture, text_over_a_fill_is_seen) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Box({1400, 1400, 6000, 600}, Grey, 0)
                            .Text("HHHHHHHH", 1440, 1440, 20, true)
                            .Build();
  const QImage page = Screen(*document, 96);
  int dark = 0;
  for (double x = 1500; x < 4000; x += 15) dark += PixelAt(page, x, 1700).lightness() < 100;
  EXPECT_GT(dark, 20);
}

TEST(PagePicture, borders_are_one_sharp_pixel_at_full_size) {
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

TEST(PagePicture, pieces_of_a_thin_line_that_meet_are_one_even_line) {
  DocumentBuilder builder;
  builder.Page();
  for (float top = 1000; top < 4000; top += 283) builder.Line({2000, top, 0, 283});
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

TEST(PagePicture, clipped_text_ends_at_its_box) {
  const auto document = DocumentBuilder().Page().NarrowText("MMMMMMMMMMMMMMMM", 1440, 1440, 600).Build();
  const QImage page = Screen(*document, 96);
  for (int x = (1440 + 600) / 15 + 2; x < 400; ++x) EXPECT_EQ(qGray(page.pixel(x, 1540 / 15)), 255) << x;
}

TEST(PagePicture, a_page_of_one_picture_only_shows_it) {
  const auto document =
      DocumentBuilder().Page().Picture(std::make_shared<SamplePicture>(), {0, 0, 11906, 16838}).Build();
  EXPECT_EQ(PixelAt(Screen(*document, 96), 10000, 2000).lightness(), 200);
}

}  // namespace
}  // namespace tarvis
