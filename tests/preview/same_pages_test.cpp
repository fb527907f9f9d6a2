// Screen and PDF show the same pages: their pictures are laid over each other, pixel by pixel.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>
#include <cmath>

#include "pictures/picture_file_loader.h"
#include "preview/document_builder.h"
#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "preview/page_comparison.h"
#include "preview/pages/page_pictures.h"
#include "preview/pdf_file.h"
#include "support/report_run.h"
#include "support/sample_report.h"
#include "support/source_folder.h"

namespace tarvis {
namespace {

constexpr Color TitleGrey = 0xE0E0E0;

// 800 pixels at 96 dots per inch: whole pixels, so that the two pictures have one scale.
constexpr float PaperWidth = 12000;

QImage OnScreen(const Document& document, int resolution) {
  const int width =
      static_cast<int>(std::lround(static_cast<double>(document.Setup.Width) * resolution / 1440));
  return RenderPage(document, 0, width, 0, PagePixelHeight(document, width));
}

QImage Pdf(const Document& document, int resolution) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("out.pdf"));
  EXPECT_EQ(ExportPdf(document, path, {}, GoOn), QString());
  const QString picture = folder.filePath(QStringLiteral("page"));
  RunTool("pdftoppm", {QStringLiteral("-r"), QString::number(resolution), QStringLiteral("-png"),
                       QStringLiteral("-singlefile"), path, picture});
  return QImage(picture + QStringLiteral(".png"));
}

// A parameter list as the program composes it.
Document ParameterList() {
  ReportRun run;
  UserData& user = run.Run.User;
  user.UserNum = 24;
  user.Prm.Resize(24);
  for (int i = 0; i < 24; ++i) {
    user.Prm[i] = {"Pn" + std::to_string(100 + i), "Speed Loop Gain", std::to_string(i * 7) + ".5", "40.0",
                   "Hz"};
  }
  const auto report = CreateFunctionReport("rptUserPrm", run.Context());
  run.Run.Session.MasterReport = report.get();
  return Compose(*report, {PaperWidth, 9000, 0, 0, 0, 0}, ArialMeasurer());
}

// Titles, grey cells, frames, rules, ticks, and texts in several sizes and weights.
DocumentBuilder FramesAndTexts(Color titleGrey = TitleGrey, float shift = 0, const char* unit = "Hz") {
  DocumentBuilder builder;
  builder.Paper(PaperWidth, 4500).Page().Text("Parameter List", 1440, 340, 12, true);
  builder.Box({1440, 800, 3000, 420}, titleGrey).Text("Title cell", 1600, 860);
  builder.Row({"Pn100", "Speed Loop Gain", "40.0", unit}, 1316).Row({"Pn101", "Offset", "1", ""}, 1604);
  builder.Text("Encoder Dividing Ratio, minimum", 1440, 2000).Text("Illumination", 1447, 2300, 10);
  builder.Text("Overlapping target", 5440, 2000, 9, true).Text("Cover", 5440, 2400, 20);
  builder.Box({7440, 2000, 1500 + shift, 600}, White, 2).Line({1440, 3032, 7200, 0}, 3);
  builder.Line({1440, 3320, 2880, 840})
      .Tick({6000, 3320, 240, 240}, true)
      .Tick({6000, 3820, 240, 240}, false);
  return builder;
}

PicturePtr Sample(const char* name) {
  PictureFileLoader loader;
  return loader.Load(SourceFolder() + "/tests/pictures/data/" + name);
}

PicturePtr Bitmap() {
  QByteArray bytes;
  QBuffer file(&bytes);
  file.open(QIODevice::WriteOnly);
  QImage(QString::fromStdString(SourceFolder() + "/tests/pictures/data/ink_image.emf.png"))
      .save(&file, "BMP");
  PictureFileLoader loader;
  return loader.LoadBytes("bitmap",
                          std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

// Pictures, Japanese from a fallback font, condensed and clipped text.
DocumentBuilder PicturesAndFallback(const char* japanese = "速度ループゲイン 一覧") {
  DocumentBuilder builder;
  builder.Paper(PaperWidth, 7500).Page().Text(japanese, 1440, 340, 12).Text(japanese, 1440, 800);
  builder.NarrowText("Encoder Dividing Ratio", 6440, 340, 1200)
      .NarrowText("Encoder Dividing Ratio", 6440, 800, 500);
  builder.Picture(Sample("ink_shapes.emf"), {1440, 1200, 4320, 2880});
  builder.Picture(Sample("ink_shapes.wmf"), {5940, 1200, 4320, 2880});
  builder.Picture(Bitmap(), {1440, 4300, 4320, 2880});
  return builder;
}

class SamePages : public testing::TestWithParam<int> {
 protected:
  static int Resolution() { return GetParam(); }
  // A renderer may put an edge on the next pixel; at 300 dots per inch, where that hides less, one further.
  static int Reach() { return Resolution() < 200 ? 1 : 2; }
  // What the screen shows of one document and the PDF of another.
  static PageDifference Difference(const Document& screen, const Document& pdf, int reach = Reach()) {
    const QImage shown = OnScreen(screen, Resolution());
    const QImage printed = Pdf(pdf, Resolution());
    EXPECT_NEAR(shown.width(), printed.width(), 1);
    EXPECT_NEAR(shown.height(), printed.height(), 1);
    return Compare(shown, printed, reach);
  }
  // A difference in the PDF that must be found by more than a few stray pixels.
  static void ExpectFound(const DocumentBuilder& changed) {
    EXPECT_GT(Difference(*FramesAndTexts().Build(), changed.Peek()).Pixels, 10);
  }
};

TEST_P(SamePages, AComposedParameterList) {
  const Document document = ParameterList();
  EXPECT_EQ(Difference(document, document).Pixels, 0);
}

TEST_P(SamePages, FramesRulesGreyTitlesAndTextsInSeveralSizes) {
  const auto document = FramesAndTexts().Build();
  const PageDifference difference = Difference(*document, *document);
  EXPECT_EQ(difference.Pixels, 0) << testing::PrintToString(difference);
}

TEST_P(SamePages, PicturesJapaneseAndCondensedText) {
  const auto document = PicturesAndFallback().Build();
  const PageDifference difference = Difference(*document, *document, 2);
  EXPECT_EQ(difference.Pixels, 0) << testing::PrintToString(difference);
}

TEST_P(SamePages, TextAfterAClippedOneInTheFontThatItShouldHave) {
  DocumentBuilder builder;
  builder.Paper(PaperWidth, 3000).Page().Text("Overlapping target", 1440, 300, 14, true);
  builder.NarrowText("Encoder Dividing Ratio", 1440, 900, 500).Text("Illumination", 1440, 1300);
  const PageDifference difference = Difference(builder.Peek(), builder.Peek());
  EXPECT_EQ(difference.Pixels, 0) << testing::PrintToString(difference);
}

TEST_P(SamePages, TextsAndFramesCutByTheirBoxAndByTheEndOfThePage) {
  constexpr CellStyle cell{.Border = true, .Filled = true};
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddField("long", {1440, 0, 2000, 283}, cell).Text = "one\r\ntwo\r\nthree\r\nfour\r\nfive\r\nsix";
  Field& cut = detail.AddField("cut", {4440, 0, 2000, 283}, cell);
  cut.Text = "gypsum\r\ngypsum";
  detail.BeforePrint = [&] { cut.Height = 284; };
  const Document document = Compose(report, {PaperWidth, 1000, 0, 0, 200, 200}, ArialMeasurer());
  ASSERT_EQ(document.Pages.size(), 2U);
  const PageDifference difference = Difference(document, document);
  EXPECT_EQ(difference.Pixels, 0) << testing::PrintToString(difference);
}

TEST_P(SamePages, ADeletedWordWouldBeFound) {
  ExpectFound(FramesAndTexts(TitleGrey, 0, ""));
}

TEST_P(SamePages, ABorderMovedBy30TwipsWouldBeFound) {
  ExpectFound(FramesAndTexts(TitleGrey, 30));
}

TEST_P(SamePages, AnotherGreyWouldBeFound) {
  ExpectFound(FramesAndTexts(TitleGrey - 0x040404));
}

TEST_P(SamePages, ADeletedJapaneseCharacterWouldBeFound) {
  EXPECT_GT(Difference(*PicturesAndFallback().Build(), *PicturesAndFallback("速度ループゲイン 一").Build(), 2)
                .Pixels,
            10);
}

INSTANTIATE_TEST_SUITE_P(Resolutions, SamePages, testing::Values(96, 300));

}  // namespace
}  // namespace tarvis
