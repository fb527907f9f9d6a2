// Page content of pictures with fewer digits: smaller, and the same to the eye.
#include "preview/output/pdf_rounding.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

#include "preview/document_builder.h"
#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "preview/output/whole_file.h"
#include "preview/pdf_file.h"
#include "preview/sample_picture.h"

namespace tarvis {
namespace {

std::string Rounded(const std::string& content) {
  return RoundedContent(content).value_or("refused");
}

TEST(RoundedContent, HasPlacesInTenthsOfATwip) {
  EXPECT_EQ(Rounded("0.050000000 0 0 -0.050000000 0 284 cm 1.23456789 5669.17089 m 8787.00001 -0.04 l S"),
            "0.05 0 0 -0.05 0 284 cm\n1.2 5669.2 m\n8787 0 l\nS\n");
}

TEST(RoundedContent, KeepsMoreDigitsUnderAMatrixThatEnlarges) {
  EXPECT_EQ(Rounded("0.05 0 0 -0.05 0 0 cm q 100.0 0 0 100.0 0 0 cm 1.23456789 2 m Q 1.23456789 2 m"),
            "0.05 0 0 -0.05 0 0 cm\nq\n100 0 0 100 0 0 cm\n1.235 2 m\nQ\n1.2 2 m\n");
}

TEST(RoundedContent, KeepsFewerDigitsUnderAMatrixThatShrinks) {
  EXPECT_EQ(Rounded("0.05 0 0 -0.05 0 0 cm 0.01 0 0 0.01 401.018578 0 cm 1234.5678 2 l"),
            "0.05 0 0 -0.05 0 0 cm\n0.01 0 0 0.01 401 0 cm\n1235 2 l\n");
}

TEST(RoundedContent, MovesInATextDoNotAddUpTheirErrors) {
  EXPECT_EQ(
      Rounded("0.05 0 0 -0.05 0 0 cm BT 0.04 0 Td <0001> Tj 0.04 0 Td <0002> Tj 0.04 0 Td <0003> Tj ET"),
      "0.05 0 0 -0.05 0 0 cm\nBT\n0 0 Td\n<0001> Tj\n0.1 0 Td\n<0002> Tj\n0 0 Td\n<0003> Tj\nET\n");
}

TEST(RoundedContent, LeavesOutWhatIsSavedForNothing) {
  EXPECT_EQ(Rounded("q q\nQ\nQ q\n0 0 m\nq\nQ\nQ"), "q\n0 0 m\nQ\n");
}

TEST(RoundedContent, KeepsColoursDashesNamesAndTinyWidths) {
  EXPECT_EQ(Rounded("/CSp cs 0.501960814 0 1 scn 0.0201 w [3.46627178 6.93254356 ]0  d /GSa gs"),
            "/CSp cs\n0.502 0 1 scn\n0.02 w\n[ 3.466 6.933 ] 0 d\n/GSa gs\n");
}

TEST(RoundedContent, WritesNoExponents) {
  EXPECT_EQ(Rounded("0.00000512345 0 0 1 0 0 cm"), "0.00000512345 0 0 1 0 0 cm\n");
}

TEST(RoundedContent, HasGreysForColoursIfThatIsAskedFor) {
  const auto greyOf = [](const char* content) {
    return RoundedContent(content, Inks::Greys).value_or("refused");
  };
  EXPECT_EQ(greyOf("1 0 0 rg 0 1 0 RG 0 0 1 scn"),
            "0.299 0.299 0.299 rg\n0.587 0.587 0.587 RG\n0.114 0.114 0.114 scn\n");
  EXPECT_EQ(greyOf("/CSp cs 1 0 0 /Pat5 scn /Pat6 scn 0.4 g"),
            "/CSp cs\n0.299 0.299 0.299 /Pat5 scn\n/Pat6 scn\n0.4 g\n");
}

TEST(RoundedContent, RefusesWhatItDoesNotKnow) {
  for (const char* content :
       {"BI /W 1 ID x EI", "(text) Tj", "1 0 0 1 cm", "Q", "1 2", "0 0 0 0 0 0 cm", "% word"})
    EXPECT_EQ(Rounded(content), "refused") << content;
}

// A curve of a thousand places between the twips.
class CurvePicture : public SamplePicture {
 public:
  void Paint(QPainter& painter, const QRectF& target) const override {
    QPolygonF curve;
    for (int step = 0; step < 1000; ++step)
      curve << target.topLeft() +
                   QPointF(step * target.width() / 1000, target.height() / 2 * (1 + std::sin(step / 30.0)));
    painter.setPen(QPen(QColor(0, 90, 255), 20));
    painter.drawPolyline(curve);
  }
};

class RoundedPicture : public testing::Test {
 protected:
  // What the picture's content weighs.
  static std::size_t ContentSize(const std::string& bytes) {
    QPDF pdf;
    pdf.processMemoryFile("test", bytes.data(), bytes.size());
    QPDFObjectHandle page = pdf.getAllPages().at(0);
    QPDFObjectHandle forms = page.getKey("/Resources").getKey("/XObject");
    return forms.getKey("/P0").getStreamData()->getSize();
  }
};

TEST_F(RoundedPicture, TakesTwoThirdsAtMostForACurveAndShowsItWhereItWas) {
  const auto document =
      DocumentBuilder().Page().Picture(std::make_shared<CurvePicture>(), {1440, 720, 9000, 4000}).Build();
  const std::string bytes = MakePdf(*document, PdfSheets::AllOf(*document), {}, GoOn);
  constexpr std::size_t AsTheToolkitWritesIt = 1000 * (10 + 1 + 10 + 3);  // "1234.56789 1234.56789 l\n"
  EXPECT_LT(ContentSize(bytes), AsTheToolkitWritesIt * 2 / 3);
  const QTemporaryDir folder;
  ASSERT_EQ(WriteWholeFile(bytes, folder.filePath(QStringLiteral("out.pdf")).toStdString()), QString());
  RunTool("pdftoppm",
          {QStringLiteral("-singlefile"), QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("72"),
           folder.filePath(QStringLiteral("out.pdf")), folder.filePath(QStringLiteral("page"))});
  const QImage page(folder.filePath(QStringLiteral("page.png")));
  ASSERT_FALSE(page.isNull());
  for (int step = 20; step < 1000; step += 60) {
    const QPointF place(72 + step * 0.45, 36 + 100 * (1 + std::sin(step / 30.0)));
    EXPECT_LT(page.pixelColor(place.toPoint()).red(), 200) << step;
  }
}

}  // namespace
}  // namespace tarvis
