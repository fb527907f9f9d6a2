// PDFs that are made while their documents are composed.
#include "preview/output/pdf_press.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <stdexcept>

#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "preview/sample_picture.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

constexpr int RowsOfAPage = 3;

// Three rows a page: a number of their own, a text in another script, a picture, and the page total below.
class PicturedReport : public SampleReport {
 public:
  explicit PicturedReport(int pages, PicturePtr picture = std::make_shared<SamplePicture>()) {
    Section& detail = Growing(SectionKind::Detail, "d");
    Field& number = detail.AddField("number", {200, 0, 3000, 285}, {.Border = true}, "");
    Field& word = detail.AddField("word", {3200, 0, 3000, 285}, {.Bold = true}, "");
    Image& image = detail.AddImage("image", {6200, 0, 600, 400});
    Section& footer = Fixed(SectionKind::PageFooter, "footer", 300);
    footer.AddField("page", {0, 0, 400, 285}, {}, "").Summary = Summary::PageNumber;
    footer.AddField("total", {500, 0, 400, 285}, {}, "").Summary = Summary::PageCount;
    Rows(RowsOfAPage * pages, [&, picture](int row) {
      number.Text = "Pn" + std::to_string(row);
      word.Text = row % 5 == 0 ? "\u05D0\u05D1" : "row";
      image.Picture = row == RowsOfAPage * 2 ? picture : nullptr;
      TOC.Add("rows\\" + number.Text);
    });
  }
};

// Paper for three rows of 400 twips and the footer.
Document ComposeFor(PageTaker* taker, ActiveReport& report) {
  return Compose(report, {8000, 1500, 0, 0, 0, 0}, ArialMeasurer(), taker);
}

const PdfInfo Info{QStringLiteral("Rows"), QStringLiteral("Korvane"), {}};

PdfLook LookOf(const Document& document) {
  return PdfSheets::AllOf(document);
}

TEST(PdfPress, GivesTheBytesOfThePdfOfTheWholeDocument) {
  PicturedReport whole(40);
  const Document document = ComposeFor(nullptr, whole);
  ASSERT_EQ(document.Pages.size(), 40U);
  const std::string expected = MakePdf(document, PdfSheets::AllOf(document), Info, GoOn);
  for (int run = 0; run < 3; ++run) {
    PicturedReport report(40);
    PdfPress press(LookOf(document), 0, GoOn);
    const Document rest = ComposeFor(&press, report);
    EXPECT_EQ(press.Finish(rest, Info), expected) << run;
  }
}

// As where composing fails after pages were taken, and its texts end with it.
TEST(PdfPress, PaintsPagesThatWereTakenOfADocumentThatIsGone) {
  std::latch gone(1);
  PicturedReport whole(2);
  auto document = std::make_unique<Document>(ComposeFor(nullptr, whole));
  PdfPress press(LookOf(*document), 0, [&](int, int) {
    gone.wait();
    return true;
  });
  press.Take(*document, 0);
  document.reset();
  gone.count_down();
  PicturedReport report(1);
  EXPECT_NE(press.Finish(ComposeFor(nullptr, report), Info), "");
}

TEST(PdfPress, PaintsNothingMoreAndGivesNothingOnceItIsCancelled) {
  std::atomic<int> asked = 0;
  PicturedReport report(40);
  PdfPress press({.Paper = QSizeF(8000, 1500)}, 0, [&](int done, int) {
    ++asked;
    return done < 5;
  });
  const Document rest = ComposeFor(&press, report);
  EXPECT_EQ(press.Finish(rest, Info), "");
  EXPECT_EQ(asked, 6);
}

TEST(PdfPress, GivesNothingIfItIsCancelledAtItsEnd) {
  PicturedReport report(2);
  PdfPress press({.Paper = QSizeF(8000, 1500)}, 0, [&](int, int total) { return total == 0; });
  const Document rest = ComposeFor(&press, report);
  EXPECT_EQ(press.Finish(rest, Info), "");
}

TEST(PdfPress, PassesOnWhatPaintingThrows) {
  class BadPicture : public SamplePicture {
   public:
    void Paint(QPainter&, const QRectF&) const override { throw std::runtime_error("no such picture"); }
  };
  PicturedReport report(40, std::make_shared<BadPicture>());
  PdfPress press({.Paper = QSizeF(8000, 1500)}, 0, GoOn);
  const Document rest = ComposeFor(&press, report);
  EXPECT_THROW(press.Finish(rest, Info), std::runtime_error);
}

TEST(PdfPress, ComposingGoesOnToItsEndWhenAPageCannotBePainted) {
  PicturedReport report(40);
  PdfPress press({.Paper = QSizeF(8000, 1500)}, 0, [](int done, int) -> bool {
    if (done == 1) throw std::runtime_error("no such page");
    return true;
  });
  const Document rest = ComposeFor(&press, report);
  EXPECT_EQ(rest.Pages.size(), 40U);
  EXPECT_THROW(press.Finish(rest, Info), std::runtime_error);
}

TEST(PdfPress, EndsWithTheFailureOfARowAfterPagesThatArePainted) {
  std::atomic<int> painted = 0;
  PicturedReport report(40);
  report.Fetch = [rows = report.Fetch, row = 0](bool& endOfData) mutable {
    if (++row == 100) throw std::invalid_argument("no such row");
    rows(endOfData);
  };
  PdfPress press({.Paper = QSizeF(8000, 1500)}, 0, [&](int, int) {
    ++painted;
    return true;
  });
  EXPECT_THROW(ComposeFor(&press, report), std::invalid_argument);
  EXPECT_GT(painted, 0);
}

}  // namespace
}  // namespace tarvis
