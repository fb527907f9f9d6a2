// The structure of a PDF that has other pages than the document, or in another order.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qpdf/QPDF.hh>

#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

constexpr CellStyle Bordered{.Border = true};

// A title, and a table of five rows, two on each page, below its repeated header.
Document TableOnThreePages() {
  SampleReport report;
  Section& title = report.Growing(SectionKind::GroupHeader, "title");
  title.AddField("title", {0, 0, 3000, 283}, {}, "Title").Reads.As = PartRole::Heading;
  Section& guide = report.Growing(SectionKind::GroupHeader, "guide");
  guide.Role = BandRole::HeaderRow;
  guide.Repeat = true;
  guide.AddField("header", {0, 0, 3000, 283}, Bordered, "No.");
  Section& rows = report.Growing(SectionKind::Detail, "rows");
  rows.Role = BandRole::Row;
  Field& value = rows.AddField("value", {0, 0, 3000, 283}, Bordered);
  report.Rows(5, [&value](int row) { value.Text = std::to_string(row); });
  return ComposeSample(report, 3.5F * 283);
}

// What is in a structure, in the order of reading: the types of elements, without those that hold other ones.
class Tagged {
 public:
  explicit Tagged(const std::vector<int>& pages) : document_(TableOnThreePages()) {
    PdfSheets sheets = PdfSheets::AllOf(document_);
    sheets.Pages = pages;
    PdfInfo info;
    info.IsTagged = true;
    bytes_ = MakePdf(document_, sheets, info, GoOn);
    pdf_.processMemoryFile("test", bytes_.data(), bytes_.size());
    Walk(pdf_.getRoot().getKey("/StructTreeRoot").getKey("/K"));
  }

  std::size_t PagesOfDocument() const { return document_.Pages.size(); }
  const std::vector<std::string>& Leaves() const { return leaves_; }

 private:
  void Walk(QPDFObjectHandle element) {
    if (element.isArray()) {
      for (QPDFObjectHandle kid : element.getArrayAsVector()) Walk(kid);
    } else if (element.isDictionary() && element.hasKey("/Pg")) {
      leaves_.push_back(element.getKey("/S").getName() + " " +
                        std::to_string(SheetOf(element.getKey("/Pg"))));
    } else if (element.isDictionary()) {
      Walk(element.getKey("/K"));
    }
  }
  // Counted from 1.
  std::size_t SheetOf(const QPDFObjectHandle& page) {
    const std::vector<QPDFObjectHandle>& pages = pdf_.getAllPages();
    for (std::size_t sheet = 0; sheet < pages.size(); ++sheet) {
      if (pages[sheet].getObjGen() == page.getObjGen()) return sheet + 1;
    }
    return 0;
  }

  Document document_;
  std::string bytes_;
  QPDF pdf_;
  std::vector<std::string> leaves_;
};

TEST(PdfStructure, ReadsATitleOfColumnsOnceHoweverOftenItIsRepeated) {
  const Tagged tagged({0, 1, 2});
  ASSERT_EQ(tagged.PagesOfDocument(), 3U);
  EXPECT_THAT(tagged.Leaves(), ElementsAre("/H1 1", "/TH 1", "/TD 1", "/TD 2", "/TD 2", "/TD 3", "/TD 3"));
}

TEST(PdfStructure, ReadsTheRepeatedTitleWhereTheFirstOneIsNotInTheFile) {
  EXPECT_THAT(Tagged({1, 2}).Leaves(), ElementsAre("/TH 1", "/TD 1", "/TD 1", "/TD 2", "/TD 2"));
}

TEST(PdfStructure, ReadsInTheOrderOfTheDocumentWhateverThatOfThePages) {
  EXPECT_THAT(Tagged({2, 1, 0}).Leaves(),
              ElementsAre("/H1 3", "/TH 3", "/TD 3", "/TD 2", "/TD 2", "/TD 1", "/TD 1"));
}

TEST(PdfStructure, ReadsOneCopyAfterTheOther) {
  EXPECT_THAT(Tagged({0, 0, 1, 1}).Leaves(), ElementsAre("/H1 1", "/TH 1", "/TD 1", "/TD 3", "/TD 3", "/H1 2",
                                                         "/TH 2", "/TD 2", "/TD 4", "/TD 4"));
}

}  // namespace
}  // namespace tarvis
