// What the painter asks of a canvas for boxes and texts that were cut.
#include "preview/paint/page_painter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::IsEmpty;

// Keeps the frames and strokes of one page.
class Recorder : public Canvas {
 public:
  explicit Recorder(const Document& document, std::size_t page = 0) { PaintPage(document, page, *this); }

  void Fill(const std::vector<Rect>&, Color) override {}
  void Frame(const std::vector<Rect>& boxes, float) override {
    Frames.insert(Frames.end(), boxes.begin(), boxes.end());
  }
  void Strokes(const std::vector<Rect>& lines, float) override {
    Lines.insert(Lines.end(), lines.begin(), lines.end());
  }
  void Text(const TextPiece&, const TextStyle&, const Rect&) override {}
  void Picture(const tarvis::Picture&, const Rect&) override {}

  std::vector<Rect> Frames;
  std::vector<Rect> Lines;
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
