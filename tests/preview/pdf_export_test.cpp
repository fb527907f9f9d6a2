#include "preview/pdf_export.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "preview/document_builder.h"

namespace tarvis {
namespace {

bool GoOn(int, int) {
  return true;
}

class PdfExport : public testing::Test {
 protected:
  QString Path() const { return folder_.filePath(QStringLiteral("out.pdf")); }
  void Export(const Document& document) {
    ASSERT_EQ(ExportPdf(document, Path(),
                        {QString::fromStdString(document.Title), QStringLiteral("Korvane"), {}}, GoOn),
              QString());
  }
  // Standard output and error of a tool that reads the file.
  QString Run(const QString& tool, const QStringList& arguments) const {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAll());
  }
  QString TextOf() const {
    return Run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), Path(), QStringLiteral("-")});
  }

  QTemporaryDir folder_;
};

TEST_F(PdfExport, text_can_be_extracted_in_reading_order) {
  Export(*DocumentBuilder()
              .Page()
              .Row({"Pn100", "Speed Loop Gain", "40.0", "Hz"}, 720)
              .Row({"Pn101", "x", "1", "ms"}, 1003)
              .Build());
  EXPECT_EQ(TextOf().simplified(), QStringLiteral("Pn100 Speed Loop Gain 40.0 Hz Pn101 x 1 ms"));
}

TEST_F(PdfExport, japanese_keeps_its_characters) {
  Export(*DocumentBuilder().Page().Text("サーボ一覧 日本語", 1440, 720).Build());
  EXPECT_EQ(TextOf().simplified(), QStringLiteral("サーボ一覧 日本語"));
}

TEST_F(PdfExport, tools_find_nothing_to_complain_about) {
  Export(*DocumentBuilder().TablePages(3).Entry("Parameter", 0, 0, 720).Entry("Second", 1, 2, 1000).Build());
  EXPECT_TRUE(Run(QStringLiteral("qpdf"), {QStringLiteral("--check"), Path()})
                  .contains(QStringLiteral("No syntax or stream encoding errors found")));
  EXPECT_FALSE(TextOf().contains(QStringLiteral("Error")));
}

TEST_F(PdfExport, fonts_are_embedded_subsets) {
  Export(*DocumentBuilder().Page().Text("Regular", 1440, 720).Text("Bold", 1440, 1720, 12, true).Build());
  const QString fonts = Run(QStringLiteral("pdffonts"), {Path()});
  EXPECT_EQ(fonts.count(QStringLiteral("yes yes yes")), 2) << fonts.toStdString();
}

}  // namespace
}  // namespace tarvis
