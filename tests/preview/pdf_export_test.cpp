// The PDF, read back by independent tools: text, places, fonts, outline, metadata.
#include "preview/output/pdf_export.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimeZone>
#include <QXmlStreamReader>
#include <thread>

#include "preview/document_builder.h"
#include "preview/never_cancelled.h"
#include "preview/paint/report_font.h"
#include "preview/pdf_file.h"
#include "preview/sample_picture.h"
#include "support/full_disk.h"

namespace tarvis {
namespace {

class PdfExport : public testing::Test {
 protected:
  QString Path() const { return folder_.filePath(QStringLiteral("out.pdf")); }
  void Export(const Document& document, const QDateTime& created = {}) {
    const PdfInfo info{QString::fromStdString(document.Title), QStringLiteral("Korvane"), created};
    ASSERT_EQ(ExportPdf(document, Path(), info, GoOn), QString());
  }
  void WriteOldFile() const {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("old");
  }
  QByteArray FileBytes() const {
    QFile file(Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  // The first page as a viewer shows it.
  QImage Drawn() const {
    const QString picture = folder_.filePath(QStringLiteral("page"));
    RunTool("pdftoppm", {QStringLiteral("-singlefile"), QStringLiteral("-png"), QStringLiteral("-r"),
                         QStringLiteral("50"), Path(), picture});
    return QImage(picture + QStringLiteral(".png"));
  }
  QStringList FilesInFolder() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir folder_;
};

TEST_F(PdfExport, TextCanBeExtractedInReadingOrder) {
  Export(*DocumentBuilder()
              .Page()
              .RowFromRight({"Pn100", "Speed Loop Gain", "40.0"}, 720)
              .Row({"x", "1"}, 1003)
              .Build());
  const QString raw = RunTool("pdftotext", {QStringLiteral("-raw"), Path(), QStringLiteral("-")});
  EXPECT_EQ(raw.simplified(), QStringLiteral("Pn100 Speed Loop Gain 40.0 x 1"));
}

TEST_F(PdfExport, BytesDoNotDependOnWhatTheFontsWereAskedBefore) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Text("\u8868\u793A", 1440, 1000)
                            .Text("\u05D0", 1440, 2000, 8.5F, true)
                            .Build();
  std::string fresh;
  std::thread([&] { fresh = MakePdf(*document, PdfSheets::AllOf(*document), {}, GoOn); }).join();
  std::string after;
  std::thread([&] {
    ReportFont::OfThisThread().Find(U'\u05D0', true);
    ReportFont::OfThisThread().Find(U'\u05D0', false);
    after = MakePdf(*document, PdfSheets::AllOf(*document), {}, GoOn);
  }).join();
  EXPECT_FALSE(fresh.empty());
  EXPECT_EQ(after, fresh);
}

TEST_F(PdfExport, WordsAreWhereTheLayoutSaysWithinATwentiethOfAPoint) {
  const auto document = DocumentBuilder().Page().Text("Speed Loop Gain Wide", 1447, 1003, 8.5F).Build();
  Export(*document);
  const QString boxes = RunTool("pdftotext", {QStringLiteral("-bbox"), Path(), QStringLiteral("-")});
  QXmlStreamReader reader(boxes.mid(boxes.indexOf(QStringLiteral("<page"))));
  std::vector<double> lefts;
  double right = 0;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("word"))
      continue;
    lefts.push_back(reader.attributes().value(QLatin1String("xMin")).toDouble());
    right = reader.attributes().value(QLatin1String("xMax")).toDouble();
    EXPECT_NEAR(reader.attributes().value(QLatin1String("yMin")).toDouble(), 1003 / 20.0, 0.05);
  }
  ASSERT_EQ(lefts.size(), 4U);
  EXPECT_NEAR(lefts[0], 1447 / 20.0, 0.05);
  EXPECT_NEAR(right, (1447 + static_cast<double>(document->Texts[0].Advance)) / 20, 0.05);
}

TEST_F(PdfExport, CondensedTextKeepsToItsPrintedWidth) {
  Export(*DocumentBuilder().Page().NarrowText("Encoder", 1440, 720, 400).Build());
  const QString boxes = RunTool("pdftotext", {QStringLiteral("-bbox"), Path(), QStringLiteral("-")});
  const auto number = [&](const QString& name) {
    return boxes.section(QStringLiteral("<word"), 1)
        .section(name + QStringLiteral("=\""), 1)
        .section(QLatin1Char('"'), 0, 0)
        .toDouble();
  };
  EXPECT_NEAR(number(QStringLiteral("xMin")), 72, 0.05);
  EXPECT_NEAR(number(QStringLiteral("xMax")), 92, 0.05);
}

TEST_F(PdfExport, JapaneseKeepsItsCharacters) {
  Export(*DocumentBuilder()
              .Page()
              .Text("サーボ一覧 日本語", 1440, 720)
              .Text("日付", 1440, 1720, 12, true)
              .Build());
  EXPECT_EQ(PdfText(Path()).simplified(), QStringLiteral("サーボ一覧 日本語 日付"));
}

TEST_F(PdfExport, CharactersBeyond16BitsAndCombiningMarksAreCopiedAsTheyWereWritten) {
  Export(*DocumentBuilder()
              .Page()
              .Text("𠮷野 𠮷", 1440, 720)
              .Text("Re\xCC\x81sume\xCC\x81", 1440, 1720, 12, true)
              .Build());
  EXPECT_EQ(PdfText(Path()).simplified().normalized(QString::NormalizationForm_C),
            QStringLiteral("𠮷野 𠮷 Résumé"));
}

TEST_F(PdfExport, ToolsFindNothingToComplainAbout) {
  Export(*DocumentBuilder()
              .TablePages(3)
              .Text("漢字", 1440, 400)
              .Entry("Parameter", 0, 0, 720)
              .Entry("B", 1, 2, 9)
              .Build());
  EXPECT_TRUE(RunTool("qpdf", {QStringLiteral("--check"), Path()})
                  .contains(QStringLiteral("No syntax or stream encoding errors")));
  EXPECT_EQ(RunTool("pdftocairo", {QStringLiteral("-svg"), Path(), QStringLiteral("/dev/null")}), QString());
  for (const char* tool : {"pdfinfo", "pdffonts", "pdftotext"}) {
    const QString output =
        RunTool(tool, tool == std::string("pdftotext") ? QStringList{Path(), QStringLiteral("/dev/null")}
                                                       : QStringList{Path()});
    EXPECT_FALSE(output.contains(QStringLiteral("Warning")) || output.contains(QStringLiteral("Error")))
        << tool;
  }
  QString drawn = RunTool("mutool", {QStringLiteral("draw"), QStringLiteral("-F"), QStringLiteral("stext"),
                                     QStringLiteral("-o"), QStringLiteral("/dev/null"), Path()});
  drawn.remove(QStringLiteral("warning: ICC support is not available"));  // says how the tool was built
  EXPECT_TRUE(drawn.contains(QStringLiteral("page ")));
  EXPECT_FALSE(drawn.contains(QStringLiteral("warning")) || drawn.contains(QStringLiteral("error")))
      << drawn.toStdString();
}

TEST_F(PdfExport, FontsAreEmbeddedSubsets) {
  Export(*DocumentBuilder().Page().Text("Regular", 1440, 720).Text("Bold", 1440, 1720, 12, true).Build());
  const QString fonts = RunTool("pdffonts", {Path()});
  EXPECT_EQ(fonts.count(QStringLiteral("yes yes yes")), 2) << fonts.toStdString();
}

TEST_F(PdfExport, ContentsBecomeAnOutlineOfTwoLevelsThatLeadsToPlaces) {
  DocumentBuilder builder;
  builder.TablePages(3).Entry("Overlapping target", 0, 0, 720).Entry("Parameter", 1, 1, 1000);
  builder.Entry("Comment", 1, 2, 2000).Entry("Résumé 日本", 0, 2, 3000);
  Export(*builder.Build());
  const QString outline = RunTool("mutool", {QStringLiteral("show"), Path(), QStringLiteral("outline")});
  const QStringList lines = outline.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 4) << outline.toStdString();
  EXPECT_TRUE(lines[0].contains(QStringLiteral("\"Overlapping target\"")));
  EXPECT_TRUE(lines[1].contains(QStringLiteral("\t\"Parameter\"")) &&
              lines[1].contains(QStringLiteral("page=2")));
  EXPECT_TRUE(lines[3].contains(QStringLiteral("Résumé 日本")) &&
              lines[3].contains(QStringLiteral("page=3")));
}

TEST_F(PdfExport, MetadataHoldsTitleAuthorCreatorAndDates) {
  Export(*DocumentBuilder("Parameter List").TablePages(1).Build(),
         QDateTime({2026, 3, 5}, {10, 20, 30}, QTimeZone::utc()));
  EXPECT_EQ(PdfFact(Path(), "Title"), QStringLiteral("Parameter List"));
  EXPECT_EQ(PdfFact(Path(), "Author"), QStringLiteral("Korvane"));
  EXPECT_EQ(PdfFact(Path(), "Creator"), QStringLiteral("Tarvis"));
  EXPECT_TRUE(PdfFact(Path(), "CreationDate").contains(QStringLiteral("2026")));
  EXPECT_TRUE(PdfFact(Path(), "Page size").startsWith(QStringLiteral("595.3 x 841.9")));
}

TEST_F(PdfExport, OpensAtFitWidthWithTheOutlineAndHasPageLabels) {
  Export(*DocumentBuilder().TablePages(2).Entry("Parameter", 0, 0, 720).Build());
  const QString root = RunTool("mutool", {QStringLiteral("show"), Path(), QStringLiteral("trailer/Root")});
  EXPECT_TRUE(root.contains(QStringLiteral("/FitH")));
  EXPECT_TRUE(root.contains(QStringLiteral("/PageMode /UseOutlines")));
  EXPECT_TRUE(root.contains(QStringLiteral("/PageLabels")));
}

TEST_F(PdfExport, PicturesStayVectors) {
  const auto picture = std::make_shared<SamplePicture>();
  Export(*DocumentBuilder()
              .Page()
              .Picture(picture, {1440, 720, 3000, 2000})
              .Picture(picture, {1440, 5720, 3000, 2000})
              .Build());
  EXPECT_EQ(RunTool("pdfimages", {QStringLiteral("-list"), Path()}).count(QLatin1Char('\n')), 2)
      << "only the heading";
  EXPECT_EQ(RunTool("qpdf", {QStringLiteral("--check"), Path()}).count(QStringLiteral("WARNING")), 0);
}

TEST_F(PdfExport, TheSameDocumentGivesTheSameBytes) {
  const auto document = DocumentBuilder().TablePages(2).Text("漢字", 1440, 400).Build();
  Export(*document);
  const QByteArray first = FileBytes();
  Export(*document);
  EXPECT_EQ(FileBytes(), first);
}

TEST_F(PdfExport, ADocumentWithoutPagesIsAFileThatOpens) {
  Export(*DocumentBuilder().Build());
  EXPECT_FALSE(FileBytes().isEmpty());
}

TEST_F(PdfExport, ACancelledExportKeepsTheOldFile) {
  WriteOldFile();
  const auto document = DocumentBuilder().TablePages(3).Build();
  EXPECT_EQ(ExportPdf(*document, Path(), {}, [](int done, int) { return done < 2; }), QString());
  EXPECT_EQ(FileBytes(), QByteArray("old"));
  EXPECT_EQ(FilesInFolder(), QStringList(QStringLiteral("out.pdf")));
}

TEST_F(PdfExport, AFullDiskIsReportedAndKeepsTheOldFileAndNothingElse) {
  WriteOldFile();
  const auto document = DocumentBuilder().TablePages(3).Build();
  const QString error = [&] {
    const FullDisk full;
    return ExportPdf(*document, Path(), {}, GoOn);
  }();
  EXPECT_TRUE(error.contains(Path())) << error.toStdString();
  EXPECT_EQ(FileBytes(), QByteArray("old"));
  EXPECT_EQ(FilesInFolder(), QStringList(QStringLiteral("out.pdf")));
}

TEST_F(PdfExport, WhatIsNoFileIsNotReplaced) {
  ASSERT_EQ(mkfifo(Path().toLocal8Bit().constData(), 0600), 0);
  const QString error = ExportPdf(*DocumentBuilder().TablePages(1).Build(), Path(), {}, GoOn);
  EXPECT_TRUE(error.contains(QStringLiteral("not an ordinary file"))) << error.toStdString();
  EXPECT_FALSE(QFileInfo(Path()).isFile());
}

TEST_F(PdfExport, ChosenPagesKeepTheNumbersAtTheirFeet) {
  const auto document = DocumentBuilder().TablePages(6).Build();
  PdfSheets sheets = PdfSheets::AllOf(*document);
  sheets.Pages = {1, 2, 5, 1};
  ASSERT_EQ(ExportPdf(*document, sheets, Path(), {}, GoOn), QString());
  const QString labels =
      RunTool("mutool", {QStringLiteral("show"), Path(), QStringLiteral("trailer/Root/PageLabels")});
  static const QRegularExpression starts(QStringLiteral("/St (\\d+)"));
  QStringList numbers;
  for (auto found = starts.globalMatch(labels); found.hasNext();) numbers += found.next().captured(1);
  EXPECT_EQ(numbers, QStringList({"2", "6", "2"})) << labels.toStdString();
}

TEST_F(PdfExport, ASecondCopyOfThePagesTakesHardlyAnyRoom) {
  const auto document = DocumentBuilder().TablePages(20).Build();
  Export(*document);
  const qsizetype once = FileBytes().size();
  PdfSheets sheets = PdfSheets::AllOf(*document);
  sheets.Pages.insert(sheets.Pages.end(), sheets.Pages.begin(), sheets.Pages.end());
  ASSERT_EQ(ExportPdf(*document, sheets, Path(), {}, GoOn), QString());
  EXPECT_EQ(PdfFact(Path(), "Pages"), QStringLiteral("40"));
  EXPECT_LT(FileBytes().size(), once + once / 10);
}

TEST_F(PdfExport, GreysReachTextFillsBitmapsAndGradientsAndThePageStaysTheSameOtherwise) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Box({1440, 720, 3000, 600}, 0xFF0000)
                            .Picture(std::make_shared<ColourfulPicture>(), {1440, 2000, 3000, 2000})
                            .Build();
  PdfSheets sheets = PdfSheets::AllOf(*document);
  ASSERT_EQ(ExportPdf(*document, sheets, Path(), {}, GoOn), QString());
  const QImage colours = Drawn();
  sheets.Greys = true;
  ASSERT_EQ(ExportPdf(*document, sheets, Path(), {}, GoOn), QString());
  const QImage greys = Drawn();
  EXPECT_FALSE(colours.allGray());
  EXPECT_TRUE(greys.allGray());
  ASSERT_EQ(colours.size(), greys.size());
  for (int y = 0; y < greys.height(); y += 3) {
    for (int x = 0; x < greys.width(); x += 3) {
      const QColor ink = colours.pixelColor(x, y);
      const double expected = 0.299 * ink.red() + 0.587 * ink.green() + 0.114 * ink.blue();
      ASSERT_NEAR(greys.pixelColor(x, y).red(), expected, 4) << x << " " << y;
    }
  }
  EXPECT_TRUE(RunTool("qpdf", {QStringLiteral("--check"), Path()})
                  .contains(QStringLiteral("No syntax or stream encoding errors")));
}

// To read all contents again for their colours would take several times as long as to write them.
TEST_F(PdfExport, ADocumentWithoutColoursIsTheSameInGreys) {
  const auto document = DocumentBuilder().TablePages(20).Build();
  PdfSheets sheets = PdfSheets::AllOf(*document);
  ASSERT_EQ(ExportPdf(*document, sheets, Path(), {}, GoOn), QString());
  const QByteArray colours = FileBytes();
  sheets.Greys = true;
  ASSERT_EQ(ExportPdf(*document, sheets, Path(), {}, GoOn), QString());
  EXPECT_EQ(FileBytes(), colours);
}

TEST_F(PdfExport, AFolderThatIsGoneIsReported) {
  const auto document = DocumentBuilder().TablePages(1).Build();
  const QString error = ExportPdf(*document, folder_.filePath(QStringLiteral("gone/out.pdf")), {}, GoOn);
  EXPECT_TRUE(error.contains(QStringLiteral("gone/out.pdf"))) << error.toStdString();
}

}  // namespace
}  // namespace tarvis
