// Text of all scripts comes out of a PDF as it was written, whichever tool reads it.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "preview/document_builder.h"
#include "preview/output/pdf_export.h"
#include "preview/pdf_file.h"

namespace tarvis {
namespace {

struct Sample {
  const char* Name;
  const char* Text;
};

const Sample Samples[] = {
    {"Hebrew", "מהירות המנוע"},          {"HebrewAmongLatin", "Pn100 Speed Loop Gain מהירות"},
    {"Arabic", "سرعة المحرك"},           {"Thai", "ความเร็วที่กำหนด"},
    {"Vietnamese", "Tốc độ khuếch đại"}, {"MarksWithoutLetter", "x\xCC\xB2y\xCC\xB2"}};

class PdfScripts : public testing::TestWithParam<Sample> {
 protected:
  void SetUp() override {
    path_ = folder_.filePath(QStringLiteral("out.pdf"));
    const auto document = DocumentBuilder().Page().Text(GetParam().Text, 1440, 720, 12).Build();
    ASSERT_EQ(ExportPdf(*document, path_, {}, [](int, int) { return true; }), QString());
  }
  // Signs of direction that a tool adds are no text.
  static QString Words(QString text) {
    for (const char16_t sign : {u'\u200E', u'\u200F', u'\u202A', u'\u202B', u'\u202C', u'\u200B'})
      text.remove(QChar(sign));
    return text.simplified().normalized(QString::NormalizationForm_C);
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
  EXPECT_EQ(Words(RunTool("pdftotext", {path_, QStringLiteral("-")})), wanted_);
}

TEST_P(PdfScripts, AreExtractedInTheOrderOfReadingByMupdf) {
  EXPECT_EQ(Words(ByMupdf()), wanted_);
}

INSTANTIATE_TEST_SUITE_P(Scripts, PdfScripts, testing::ValuesIn(Samples),
                         [](const auto& sample) { return sample.param.Name; });

// Poppler turns round the letters that share a glyph, after it has turned round the line.
class PdfLigatures : public PdfScripts {};

TEST_P(PdfLigatures, AreExtractedInTheOrderOfReadingByMupdf) {
  EXPECT_EQ(Words(ByMupdf()), wanted_);
}

INSTANTIATE_TEST_SUITE_P(Arabic, PdfLigatures, testing::Values(Sample{"LamAndAlef", "الأوامر سلام"}),
                         [](const auto& sample) { return sample.param.Name; });

}  // namespace
}  // namespace tarvis
