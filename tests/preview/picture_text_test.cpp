// Text inside pictures is text: it is found, selected and copied, and is text in a PDF.
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>

#include "pictures/metafile_writer.h"
#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "preview/pdf_file.h"
#include "preview/text/text_search.h"
#include "preview/window_fixture.h"
#include "support/source_folder.h"

namespace tarvis {
namespace {

constexpr Rect Place{1440, 2000, 4000, 4000};
constexpr double Unit = 40;  // twips of the page to a unit of the picture

std::shared_ptr<const Document> Graph() {
  EmfWriter emf;
  emf.Set(18, 1).Pen(0, 1).Rectangle(20, 10, 90, 80);
  emf.Font(-10, "Arial").Text(20, 82, "Velocity [rpm]");
  emf.Set(22, 24).Font(-10, "Arial", 900).Text(15, 80, "Torque");
  PictureFileLoader loader;
  DocumentBuilder builder;
  builder.Page()
      .Text("Graph of the trace", 1440, 1000)
      .Picture(loader.LoadBytes("graph", emf.Bytes()), Place);
  return builder.Build();
}

class PictureText : public WindowTest {};

TEST_F(PictureText, IsFoundAtItsLetters) {
  Open(Graph());
  SearchFor("rpm");
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("1 of 1"));
  const auto document = Graph();
  DocumentText words(*document);
  const auto hits = Search(words, QStringLiteral("velocity"), {});
  ASSERT_EQ(hits.size(), 1U);
  const QRectF box = hits[0].Boxes[0];
  EXPECT_NEAR(box.left(), 1440 + 20 * Unit, 20);
  EXPECT_NEAR(box.top(), 2000 + 82 * Unit, 20);
  EXPECT_NEAR(box.height(), 11.17 * Unit, 20);
}

TEST_F(PictureText, IsMarkedUprightWhereItRunsUpwards) {
  const auto document = Graph();
  DocumentText words(*document);
  const auto hits = Search(words, QStringLiteral("Torque"), {});
  ASSERT_EQ(hits.size(), 1U);
  const QRectF box = hits[0].Boxes[0];
  EXPECT_GT(box.height(), 2 * box.width());
  EXPECT_NEAR(box.bottom(), 2000 + 80 * Unit, 20);
}

TEST_F(PictureText, IsCopiedAfterTheTextAboveIt) {
  Open(Graph());
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Graph of the trace\nVelocity [rpm]\nTorque"));
}

TEST_F(PictureText, IsSelectedWithTheMouseInTheDirectionInWhichItRuns) {
  Open(Graph());
  const int x = static_cast<int>(1440 + 12 * Unit);
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier,
                     At(0, x, static_cast<int>(2000 + 70 * Unit)));
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Torque"));
}

TEST_F(PictureText, IsTextInAPdf) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("out.pdf"));
  ASSERT_EQ(ExportPdf(*Graph(), path, {}, GoOn), QString());
  const QString text = RunTool("pdftotext", {QStringLiteral("-raw"), path, QStringLiteral("-")});
  EXPECT_TRUE(text.contains(QStringLiteral("Graph of the trace"))) << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("Velocity [rpm]"))) << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("Torque"))) << text.toStdString();
}

// A picture with one line, at 10, 20 of it.
std::shared_ptr<const Document> GraphWith(const std::u16string& text) {
  EmfWriter emf;
  emf.Set(18, 1).Font(-10, "DejaVu Sans").Units(10, 20, text, std::vector<int>(text.size(), 8));
  PictureFileLoader loader;
  DocumentBuilder builder;
  builder.Page().Picture(loader.LoadBytes("graph", emf.Bytes()), Place);
  return builder.Build();
}

TEST_F(PictureText, HebrewIsFoundAtItsLetters) {
  const auto document = GraphWith(u"ab \u05D0\u05D1\u05D2 cd");
  DocumentText words(*document);
  const auto hits = Search(words, QString::fromUtf8("\u05D0\u05D1"), {});
  ASSERT_EQ(hits.size(), 1U);
  ASSERT_EQ(hits[0].Boxes.size(), 1U);
  EXPECT_NEAR(hits[0].Boxes[0].left(), 1440 + (10 + 4 * 8) * Unit, 20);
  EXPECT_NEAR(hits[0].Boxes[0].right(), 1440 + (10 + 6 * 8) * Unit, 20);
  const auto across = Search(words, QString::fromUtf8("b \u05D0"), {});
  ASSERT_EQ(across.size(), 1U);
  EXPECT_EQ(across[0].Boxes.size(), 2U) << "the letter is at the other end of its word";
}

TEST_F(PictureText, HebrewIsSelectedByWordsAndCopiedInTheOrderOfReading) {
  Open(GraphWith(u"ab \u05D0\u05D1\u05D2 cd"));
  QTest::mouseDClick(
      View().viewport(), Qt::LeftButton, Qt::NoModifier,
      At(0, static_cast<int>(1440 + (10 + 4.5 * 8) * Unit), static_cast<int>(2000 + 25 * Unit)));
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("\u05D0\u05D1\u05D2"));
}

// Joined letters come as the signs that they become, which a search takes for the letters.
TEST_F(PictureText, ComesOutOfAPdfInTheOrderOfReadingIfItRunsToTheLeft) {
  for (const char16_t* text : {u"\u05DE\u05D4\u05D9\u05E8\u05D5\u05EA", u"\u0633\u0631\u0639\u0629"}) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.pdf"));
    ASSERT_EQ(ExportPdf(*GraphWith(text), path, {}, GoOn), QString());
    const QString found = RunTool("pdftotext", {path, QStringLiteral("-")})
                              .normalized(QString::NormalizationForm_KC)
                              .remove(QLatin1Char(' '));
    EXPECT_TRUE(found.contains(QString::fromUtf16(text))) << found.toStdString();
  }
}

TEST_F(PictureText, IsTextInAPdfAlsoWhereTheNamedFontDoesNotHaveIt) {
  for (const char16_t* text : {u"\u0E04\u0E27\u0E32\u0E21", u"\u30B2\u30A4\u30F3"}) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.pdf"));
    ASSERT_EQ(ExportPdf(*GraphWith(text), path, {}, GoOn), QString());
    const QString found = RunTool("pdftotext", {path, QStringLiteral("-")}).remove(QLatin1Char(' '));
    EXPECT_TRUE(found.contains(QString::fromUtf16(text))) << found.toStdString();
  }
}

// In the order of their codes, without blanks.
QString Letters(const QString& text) {
  QString letters;
  for (const QChar letter : text)
    if (!letter.isSpace()) letters += letter;
  std::sort(letters.begin(), letters.end());
  return letters;
}

// The samples have fonts of letters as wide as each other, and of different widths.
TEST_F(PictureText, IsCopiedFromEverySampleAsItIsInAPdf) {
  const QDir samples(QString::fromStdString(SourceFolder()) + QStringLiteral("/tests/pictures/data"));
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("out.pdf"));
  int withText = 0;
  for (const QFileInfo& sample : samples.entryInfoList({QStringLiteral("*.emf"), QStringLiteral("*.wmf")})) {
    PictureFileLoader loader;
    DocumentBuilder builder;
    builder.Page().Text("Graph", 1440, 1000);
    builder.Picture(loader.Load(sample.filePath().toStdString()), {1440, 2000, 8000, 6000});
    const auto document = builder.Build();
    ASSERT_EQ(ExportPdf(*document, path, {}, GoOn), QString());
    const QString inPdf = RunTool("pdftotext", {QStringLiteral("-raw"), path, QStringLiteral("-")});
    Open(document);
    Press(Qt::Key_A, Qt::ControlModifier);
    const QString copied = CopiedText();
    EXPECT_EQ(Letters(copied).toStdString(), Letters(inPdf).toStdString()) << sample.fileName().toStdString();
    if (copied != QStringLiteral("Graph")) ++withText;
  }
  EXPECT_EQ(withText, 13);  // the other six hold their letters as outlines
}

}  // namespace
}  // namespace tarvis
