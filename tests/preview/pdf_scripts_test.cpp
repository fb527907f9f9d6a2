// Text of all scripts comes out of a PDF as it was written, whichever tool reads it.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "preview/document_builder.h"
#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "preview/pdf_file.h"

namespace tarvis {
namespace {

struct Sample {
  const char* Name;
  const char* Text;
  bool HasFreeMarks =
      false;  // marks that are glyphs of their own; newer tools take some gaps beside them for blanks
};

const Sample Samples[] = {
    {"Hebrew", "מהירות המנוע"},          {"HebrewAmongLatin", "Pn100 Speed Loop Gain מהירות"},
    {"Arabic", "سرعة المحرك"},           {"ArabicSignsOfTwoLetters", "الأوامر سلام لإعادة"},
    {"Thai", "ความเร็วที่กำหนด ตั้งค่า"},      {"ThaiWithLatin", "น้ำ Pn100 ค่าเริ่มต้น"},
    {"Vietnamese", "Tốc độ khuếch đại"}, {"MarksWithoutLetter", "x\xCC\xB2y\xCC\xB2", true}};

class PdfScripts : public testing::TestWithParam<Sample> {
 protected:
  void SetUp() override {
    path_ = folder_.filePath(QStringLiteral("out.pdf"));
    const auto document = DocumentBuilder().Page().Text(GetParam().Text, 1440, 720, 12).Build();
    ASSERT_EQ(ExportPdf(*document, path_, {}, GoOn), QString());
  }
  // Signs of direction that a tool adds are no text.
  static QString Words(QString text) {
    for (const char16_t sign : {u'\u200E', u'\u200F', u'\u202A', u'\u202B', u'\u202C', u'\u200B'})
      text.remove(QChar(sign));
    text = text.simplified().normalized(QString::NormalizationForm_C);
    return GetParam().HasFreeMarks ? text.remove(QLatin1Char(' ')) : text;
  }

  QString ByMupdf() const {
    const QString text = folder_.filePath(QStringLiteral("out.txt"));
    RunTool("mutool", {QStringLiteral("draw"), QStringLiteral("-F"), QStringLiteral("text"),
                       QStringLiteral("-o"), text, path_});
    QFile file(text);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }

  const QString wanted_ = QString::fromUtf8(GetParam().Text);
  QTemporaryDir folder_;
  QString path_;
};

TEST_P(PdfScripts, AreExtractedInTheOrderOfReadingByPoppler) {
  EXPECT_EQ(Words(RunTool("pdftotext", {path_, QStringLiteral("-")})), Words(wanted_));
}

TEST_P(PdfScripts, AreExtractedInTheOrderOfReadingByMupdf) {
  EXPECT_EQ(Words(ByMupdf()), Words(wanted_));
}

INSTANTIATE_TEST_SUITE_P(Scripts, PdfScripts, testing::ValuesIn(Samples),
                         [](const auto& sample) { return sample.param.Name; });

TEST_P(PdfScripts, HaveBookmarksInTheOrderOfReading) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Text("x", 1440, 720)
                            .Entry(GetParam().Text, 0, 0, 720)
                            .Entry(wanted_.normalized(QString::NormalizationForm_D).toStdString(), 1, 0, 720)
                            .Build();
  PdfInfo info;
  info.Title = wanted_;
  ASSERT_EQ(ExportPdf(*document, path_, info, GoOn), QString());
  const QString outline = RunTool("mutool", {QStringLiteral("show"), path_, QStringLiteral("outline")});
  EXPECT_EQ(outline.count(wanted_), 2) << outline.toStdString();
  EXPECT_EQ(PdfFact(path_, "Title"), wanted_);
}

// Poppler sets all lines of a page in the direction of its majority; the other tool parts words at wide gaps.
class PdfMixedLines : public PdfScripts {};

TEST_P(PdfMixedLines, AreExtractedInTheOrderOfReadingByMupdf) {
  const auto joined = [](QString text) { return text.remove(QLatin1Char(' ')); };
  EXPECT_EQ(joined(Words(ByMupdf())), joined(wanted_));
}

INSTANTIATE_TEST_SUITE_P(Scripts, PdfMixedLines,
                         testing::Values(Sample{"Hebrew", "ערך 3000 (min) של Pn100."},
                                         Sample{"ArabicAmongLatin", "Pn100 سرعة 3000 rpm"}),
                         [](const auto& sample) { return sample.param.Name; });

// Poppler takes their marks for lines above and below.
class PdfPoints : public PdfScripts {};

TEST_P(PdfPoints, AreExtractedInTheOrderOfReadingByMupdf) {
  EXPECT_EQ(Words(ByMupdf()), Words(wanted_));
}

INSTANTIATE_TEST_SUITE_P(Scripts, PdfPoints,
                         testing::Values(Sample{"Hebrew", "שָׁלוֹם עוֹלָם", true},
                                         Sample{"Arabic", "مُحَرِّك لَا", true}),
                         [](const auto& sample) { return sample.param.Name; });

}  // namespace
}  // namespace tarvis
