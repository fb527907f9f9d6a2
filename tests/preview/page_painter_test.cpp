// What the painter asks of a canvas for boxes and texts that were cut.
#include "preview/paint/page_painter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "preview/output/reading_order.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Keeps the frames, strokes and texts of one page.
class Recorder : public Canvas {
 public:
  using Painting = void (*)(const Document& document, std::size_t page, Canvas& canvas);
  explicit Recorder(const Document& document, std::size_t page = 0, Painting paint = PaintPage) {
    paint(document, page, *this);
  }

  void Fill(const std::vector<Rect>&, Color) override {}
  void Frame(const std::vector<Rect>& boxes, float) override {
    Frames.insert(Frames.end(), boxes.begin(), boxes.end());
  }
  void Strokes(const std::vector<Rect>& lines, float) override {
    Lines.insert(Lines.end(), lines.begin(), lines.end());
  }
  void Text(const TextPiece& piece, const TextStyle&, const Rect&) override {
    Texts.emplace_back(piece.Text);
  }
  void Picture(const tarvis::Picture&, const Rect&) override {}

  std::vector<Rect> Frames;
  std::vector<Rect> Lines;
  std::vector<std::string> Texts;
};

// Whether a horizontal line was painted at that height.
bool HasLineAt(const Recorder& page, float y) {
  return std::any_of(page.Lines.begin(), page.Lines.end(),
                     [&](const Rect& line) { return line.Height == 0 && line.Top == y; });
}

// A bordered cell of five lines over pages of 500 twips.
Document CutCell() {
  SampleReport report;
  constexpr CellStyle cell{.Border = true, .Filled = true};
  report.Growing(SectionKind::Detail, "d").AddField("cell", {100, 0, 1000, 283}, cell).Text =
      "a\r\nb\r\nc\r\nd\r\ne";
  return ComposeSample(report, 500);
}

TEST(PagePainter, LeavesTheFrameOfACutCellOpenAtTheCut) {
  const Document document = CutCell();
  ASSERT_EQ(document.Pages.size(), 3U);
  const Recorder first(document, 0);
  EXPECT_THAT(first.Frames, IsEmpty());
  EXPECT_TRUE(HasLineAt(first, 0));
  EXPECT_FALSE(HasLineAt(first, 500));
  const Recorder middle(document, 1);
  EXPECT_EQ(middle.Lines.size(), 2U) << "only the sides";
  const Recorder last(document, 2);
  EXPECT_FALSE(HasLineAt(last, 0));
  EXPECT_TRUE(HasLineAt(last, 190));
}

TEST(PagePainter, PaintsTheFramesOfWholeCellsAtOnce) {
  SampleReport report;
  constexpr CellStyle cell{.Border = true};
  report.Growing(SectionKind::Detail, "d").AddField("cell", {100, 0, 1000, 283}, cell);
  report.Rows(3);
  const Document document = ComposeSample(report, 2000);
  const Recorder page(document);
  EXPECT_EQ(page.Frames.size(), 3U);
  EXPECT_THAT(page.Lines, IsEmpty());
}

TEST(PagePainter, SortsTextsIntoReadingOrderForFilesOnly) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddField("value", {3000, 0, 1000, 283}, {}).Text = "40.0";
  detail.AddField("number", {100, 0, 1000, 283}, {}).Text = "Pn100";
  const Document document = ComposeSample(report, 2000);
  EXPECT_THAT(Recorder(document).Texts, ElementsAre("40.0", "Pn100"));
  EXPECT_THAT(Recorder(document, 0, PaintInReadingOrder).Texts, ElementsAre("Pn100", "40.0"));
}

TEST(PagePainter, ClipsTextBelowTheBottomOfItsBoxOnly) {
  const TextStyle style;
  EXPECT_EQ(ClipOfText({}, style, {100, 200, 500, 190}), std::nullopt);
  const auto clip = ClipOfText({}, style, {100, 200, 500, 94});
  ASSERT_TRUE(clip);
  EXPECT_EQ(clip->Bottom(), 294);
  EXPECT_LT(clip->Top, 200);
  EXPECT_LT(clip->Left, 100);
  EXPECT_GT(clip->Right(), 600);
}

TEST(PagePainter, ClipsTextTooWideForItsBoxAtBothSides) {
  const auto clip = ClipOfText({0.5F, true}, TextStyle(), {100, 200, 500, 190});
  ASSERT_TRUE(clip);
  EXPECT_EQ(clip->Left, 100);
  EXPECT_EQ(clip->Right(), 600);
  EXPECT_GT(clip->Bottom(), 390) << "letters may reach below their line";
}

}  // namespace
}  // namespace tarvis
