// Glyphs keep inside the lines of a cell that has no room to spare.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "preview/document_builder.h"
#include "preview/paint/painter_canvas.h"

namespace tarvis {
namespace {

constexpr double DotsPerTwip = 0.5;

// First and last row with ink, in twips from the top of the paper.
struct Ink {
  double Top = -1;
  double Bottom = -1;

  explicit Ink(const Document& document) {
    QImage page(4000, 600, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(DotsPerTwip, DotsPerTwip);
    PainterCanvas canvas(painter, document.CodePage);
    PaintPage(document, 0, canvas);
    for (int y = 0; y < page.height(); ++y) {
      if (!HasInk(page, y)) continue;
      if (Top < 0) Top = y / DotsPerTwip;
      Bottom = (y + 1) / DotsPerTwip;
    }
  }

 private:
  static bool HasInk(const QImage& page, int y) {
    for (int x = 0; x < page.width(); ++x) {
      if (qGray(page.pixel(x, y)) < 128) return true;
    }
    return false;
  }
};

TEST(LineHeight, KeepsIdeographsClearOfTheBordersOfATightCell) {
  constexpr double Top = 600, Pitch = 190, HalfBorder = 7.5, Dot = 1 / DotsPerTwip;
  for (const char* text : {"設定値龍", "매개변수 설정", "設定 Pn100"}) {
    const Ink ink(*DocumentBuilder().Page().Text(text, 1440, Top).Build());
    EXPECT_GT(ink.Top, Top + HalfBorder + Dot) << text;
    EXPECT_LT(ink.Bottom, Top + Pitch - HalfBorder - Dot) << text;
  }
}

// As the composer sets one line in a cell of a table: 46 twips below its top.
TEST(LineHeight, KeepsThaiMarksInsideACellOfOneLine) {
  constexpr double Top = 600, Cell = 283, Lowered = 46, HalfBorder = 7.5;
  for (const char* text : {"ที่นี่น้ำ", "ปิ่น ญี่ปุ่น", "ฏู ฐี่"}) {
    const Ink ink(*DocumentBuilder().CodePage(874).Page().Text(text, 1440, Top + Lowered).Build());
    EXPECT_GT(ink.Top, Top + HalfBorder) << text;
    EXPECT_LT(ink.Bottom, Top + Cell - HalfBorder) << text;
  }
}

TEST(LineHeight, LeavesTheBaselineOfOtherScriptsWhereItIs) {
  const auto document = DocumentBuilder().Page().Text("x", 1440, 600).Build();
  const TextPiece& piece = document->Texts[0];
  for (const char* text : {"Pn100 – “µ” …", "Скорость", "שלום", "ที่"}) {
    const TextPiece other{.Text = text, .Style = piece.Style, .Flow = FlowOf(text), .Advance = piece.Advance};
    EXPECT_DOUBLE_EQ(BaselineOf(other, document->Styles[0], {0, 600, 100, 190}), 600 + 0.905 * 170) << text;
  }
}

}  // namespace
}  // namespace tarvis
