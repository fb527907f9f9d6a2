// What pages become as content of a PDF.
#include "preview/output/pdf_canvas.h"

#include <gtest/gtest.h>

#include <qpdf/QPDFTokenizer.hh>

#include "preview/output/pdf_numbers.h"

namespace tarvis {
namespace {

const Rect Left{100, 200, 30, 40};
const Rect Right{130, 200, 50, 40};
const std::string LeftPath = "100 200 30 40 re\n";
const std::string RightPath = "130 200 50 40 re\n";

class CanvasOfPdf : public testing::Test {
 protected:
  // What the canvas writes after its matrix.
  std::string Content() {
    const std::string content = canvas_.Finish();
    return content.substr(content.find("cm\n") + 3);
  }

  PdfGlyphs glyphs_{ReportFont::OfThisThread()};
  PdfPictures pictures_;
  PdfLook look_{.Paper = QSizeF(1000, 2000)};
  PdfCanvas canvas_{look_, glyphs_, pictures_};
};

TEST_F(CanvasOfPdf, FillsAndFramesTheSameBoxesAsOnePath) {
  canvas_.Fill({Left, Right}, White);
  canvas_.Frame({Left, Right}, 15);
  EXPECT_EQ(Content(), "15 w\n1 1 1 rg\n" + LeftPath + RightPath + "B\n");
}

TEST_F(CanvasOfPdf, FramesBoxesOfEarlierFillsAfterTheLastFill) {
  canvas_.Fill({Left}, 0xFF0000);
  canvas_.Fill({Right}, White);
  canvas_.Frame({Left, Right}, 15);
  EXPECT_EQ(Content(),
            "1 0 0 rg\n" + LeftPath + "f\n15 w\n1 1 1 rg\n" + RightPath + "B\n" + LeftPath + "S\n");
}

TEST_F(CanvasOfPdf, FillsWithoutFramesWhereOneBoxHasNone) {
  canvas_.Fill({Left, Right}, White);
  canvas_.Frame({Left}, 15);
  EXPECT_EQ(Content(), "1 1 1 rg\n" + LeftPath + RightPath + "f\n15 w\n" + LeftPath + "S\n");
}

TEST_F(CanvasOfPdf, FillsBeforeWhatComesAfter) {
  canvas_.Fill({Left}, White);
  canvas_.Strokes({{0, 0, 10, 0}}, 15);
  canvas_.Fill({Right}, White);
  canvas_.Text({.Text = "a", .Advance = 100}, {}, {0, 0, 100, 190});
  const std::string content = Content();
  EXPECT_TRUE(content.starts_with("1 1 1 rg\n" + LeftPath + "f\n15 w\n0 0 m 10 0 l\nS\n" + RightPath + "f\n"))
      << content;
}

TEST_F(CanvasOfPdf, FillsAtItsEndWhatIsLeft) {
  canvas_.Fill({Left}, White);
  EXPECT_EQ(Content(), "1 1 1 rg\n" + LeftPath + "f\n");
}

TEST_F(CanvasOfPdf, HasGreysForColoursIfThatIsAskedFor) {
  look_.Greys = true;
  PdfCanvas canvas(look_, glyphs_, pictures_);
  canvas.Fill({Left}, 0xFF0000);
  canvas.Fill({Right}, 0x00FF00);
  const std::string content = canvas.Finish();
  EXPECT_TRUE(content.ends_with("0.3 0.3 0.3 rg\n" + LeftPath + "f\n0.59 0.59 0.59 rg\n" + RightPath + "f\n"))
      << content;
}

TEST(TextInBrackets, IsReadBackAsTheCodesThatWereWritten) {
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    std::string text = "(";
    AppendCode(text, static_cast<std::uint16_t>(code));
    text += ")";
    QPDFTokenizer tokens;
    for (const char byte : text) tokens.presentCharacter(byte);
    QPDFTokenizer::Token token;
    bool unread = false;
    char next = 0;
    ASSERT_TRUE(tokens.getToken(token, unread, next)) << code;
    const std::string expected{static_cast<char>(code >> 8U), static_cast<char>(code & 0xFFU)};
    ASSERT_EQ(token.getValue(), expected) << code;
  }
}

}  // namespace
}  // namespace tarvis
