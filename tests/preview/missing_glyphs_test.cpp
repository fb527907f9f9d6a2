// Characters that no font has: boxes on every road, which can still be copied.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "preview/document_builder.h"
#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "preview/paint/painter_canvas.h"
#include "preview/pdf_file.h"
#include "text/code_page.h"

namespace tarvis {
namespace {

struct HostText {
  const char* Name;
  int CodePage;
  const char* Bytes;
};

// Characters of their users in the code pages of Japan and China, an emoji, and a script without a font.
const HostText HostTexts[] = {{"Japan", 932, "A\xF0\x40Z"},
                              {"China", 936, "A\xAA\xA1Z"},
                              {"Emoji", 65001, "A\xF0\x9F\xA6\xBEZ"},
                              {"PrivatePlane", 65001, "A\xF4\x80\x80\x81Z"}};

class MissingGlyphs : public testing::TestWithParam<HostText> {
 protected:
  static std::string Text() { return CodePage(GetParam().CodePage).ToUtf8(GetParam().Bytes); }
};

TEST_P(MissingGlyphs, TheDocumentIsSavedAndTheTextCanBeCopiedFromIt) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("out.pdf"));
  const auto document = DocumentBuilder().Page().Text(Text(), 1440, 720).Build();
  ASSERT_EQ(ExportPdf(*document, path, {}, GoOn), QString());
  EXPECT_EQ(RunTool("pdftotext", {path, QStringLiteral("-")}).trimmed(), QString::fromStdString(Text()));
  EXPECT_TRUE(RunTool("qpdf", {QStringLiteral("--check"), path})
                  .contains(QStringLiteral("No syntax or stream encoding errors")));
}

TEST_P(MissingGlyphs, TheTextCanBeCopiedFromATaggedDocument) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("out.pdf"));
  const auto document = DocumentBuilder().Page().Text(Text(), 1440, 720).Build();
  PdfInfo info;
  info.IsTagged = true;
  ASSERT_EQ(ExportPdf(*document, path, info, GoOn), QString());
  EXPECT_EQ(RunTool("pdftotext", {path, QStringLiteral("-")}).trimmed(), QString::fromStdString(Text()));
}

INSTANTIATE_TEST_SUITE_P(HostTexts, MissingGlyphs, testing::ValuesIn(HostTexts),
                         [](const auto& sample) { return sample.param.Name; });

// Dark dots of a page on the screen, or of its PDF as a viewer draws it, from `left` to `right` points.
int DarkDots(const QImage& page, double left, double right) {
  const double scale = page.width() / 595.3;
  int dots = 0;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = static_cast<int>(left * scale); x < static_cast<int>(right * scale); ++x)
      dots += qGray(page.pixel(x, y)) < 128 ? 1 : 0;
  }
  return dots;
}

QImage OnScreen(const Document& document) {
  QImage page(1191, 1684, QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  painter.scale(0.1, 0.1);
  PixelCanvas canvas(painter);
  PaintPage(document, 0, canvas);
  return page;
}

QImage InPdf(const Document& document, const QTemporaryDir& folder) {
  const QString path = folder.filePath(QStringLiteral("box.pdf"));
  if (!ExportPdf(document, path, {}, GoOn).isEmpty()) return {};
  RunTool("pdftoppm", {QStringLiteral("-singlefile"), QStringLiteral("-png"), QStringLiteral("-r"),
                       QStringLiteral("144"), path, folder.filePath(QStringLiteral("box"))});
  return QImage(folder.filePath(QStringLiteral("box.png")));
}

TEST(MissingGlyph, IsTheSameBoxOnTheScreenAndInThePdf) {
  const auto document = DocumentBuilder().Page().Text("\xEE\x80\x80", 1440, 720, 40).Build();
  const QTemporaryDir folder;
  const int onScreen = DarkDots(OnScreen(*document), 72, 112);
  const int inPdf = DarkDots(InPdf(*document, folder), 72, 112);
  EXPECT_GT(onScreen, 100);
  EXPECT_NEAR(inPdf, onScreen, onScreen / 5);
}

TEST(MissingGlyph, TwoCharactersOfOneGlyphAreCopiedAsWhatTheyAre) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("out.pdf"));
  const auto document =
      DocumentBuilder().Page().Text("\xEE\x80\x80\xEE\x80\x81 \xCE\xA9 \xE2\x84\xA6", 1440, 720).Build();
  ASSERT_EQ(ExportPdf(*document, path, {}, GoOn), QString());
  EXPECT_EQ(RunTool("pdftotext", {path, QStringLiteral("-")}).trimmed(),
            QString::fromUtf8("\xEE\x80\x80\xEE\x80\x81 \xCE\xA9 \xE2\x84\xA6"));
}

}  // namespace
}  // namespace tarvis
