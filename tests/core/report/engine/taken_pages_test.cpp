// Pages that are taken one by one while later ones are composed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_report.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Notes what is on each page at the moment when it is taken.
class Notes : public PageTaker {
 public:
  void Take(const Document& document, std::size_t page) override {
    Pages.push_back(page);
    const Page& range = document.Pages[page];
    for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index)
      Items.push_back(document.Items[index]);
    for (const std::uint32_t total : PageTotalsOf(document, range))
      Totals.emplace_back(document.Texts[document.Items[total].Source].Text);
  }

  std::vector<std::size_t> Pages;
  std::vector<Item> Items;
  std::vector<std::string> Totals;
};

// Rows of 300 on pages with room for 900, each page with its number and the page total.
class NumberedReport : public SampleReport {
 public:
  explicit NumberedReport(int rows) {
    AddBlock(Growing(SectionKind::Detail, "d"), "row", 300);
    Section& footer = Fixed(SectionKind::PageFooter, "footer", 100);
    footer.AddField("number", {0, 0, 400, 190}, {.Size = 8.5F}, "").Summary = Summary::PageNumber;
    footer.AddField("total", {500, 0, 400, 190}, {.Size = 8.5F}, "").Summary = Summary::PageCount;
    footer.AddShape("box", {0, 0, 1000, 100});
    Rows(rows);
  }
};

Document ComposeFor(PageTaker* taker, ActiveReport& report) {
  return Compose(report, PaperOf(1000), ArialMeasurer(), taker);
}

TEST(TakenPages, AreThoseOfTheWholeDocumentButForThePageTotal) {
  NumberedReport whole(7);
  const Document document = ComposeFor(nullptr, whole);
  NumberedReport report(7);
  Notes notes;
  ComposeFor(&notes, report);
  EXPECT_THAT(notes.Pages, ElementsAre(0, 1, 2));
  ASSERT_EQ(notes.Items.size(), document.Items.size());
  for (std::size_t index = 0; index < notes.Items.size(); ++index) {
    EXPECT_EQ(notes.Items[index].Box.Left, document.Items[index].Box.Left);
    EXPECT_EQ(notes.Items[index].Box.Top, document.Items[index].Box.Top);
    EXPECT_EQ(notes.Items[index].Kind, document.Items[index].Kind);
  }
  EXPECT_THAT(notes.Totals, ElementsAre("1", "2", "3"));
}

TEST(TakenPages, LeaveOnlyTheirPageTotalsInTheDocument) {
  NumberedReport report(7);
  Notes notes;
  const Document document = ComposeFor(&notes, report);
  EXPECT_THAT(Places(document), ElementsAre("1:3@900", "2:3@900", "3:3@900"));
  EXPECT_THAT(document.PageTotals, ElementsAre(0, 1, 2));
}

TEST(TakenPages, LeaveNothingOfADocumentWithoutPageTotals) {
  SampleReport report;
  AddBlock(report.Growing(SectionKind::Detail, "d"), "row", 600);
  report.Rows(2);
  Notes notes;
  const Document document = ComposeFor(&notes, report);
  EXPECT_EQ(document.Pages.size(), 2U);
  EXPECT_THAT(document.Items, IsEmpty());
  EXPECT_EQ(notes.Items.size(), 2U);
}

TEST(TakenPages, ContentsLeadToThemAsInTheWholeDocument) {
  const auto contentsFor = [](PageTaker* taker) {
    NumberedReport report(7);
    report.Fetch = [&report, rows = report.Fetch](bool& endOfData) {
      rows(endOfData);
      report.TOC.Add("rows\\row");
    };
    std::vector<int> pages;
    for (const ContentsEntry& entry : ComposeFor(taker, report).Contents) pages.push_back(entry.Page);
    return pages;
  };
  Notes notes;
  EXPECT_EQ(contentsFor(&notes), contentsFor(nullptr));
}

TEST(TakenPages, ComeBeforeAFailureOfALaterRow) {
  NumberedReport report(7);
  report.Fetch = [&report, rows = report.Fetch, row = 0](bool& endOfData) mutable {
    if (++row == 7) throw RunTimeFailure("no such row");
    rows(endOfData);
  };
  Notes notes;
  EXPECT_THROW(ComposeFor(&notes, report), RunTimeFailure);
  EXPECT_THAT(notes.Pages, ElementsAre(0));
}

TEST(PageTotals, AreFoundByTheirPage) {
  NumberedReport report(7);
  const Document document = ComposeFor(nullptr, report);
  for (const Page& page : document.Pages) {
    ASSERT_EQ(PageTotalsOf(document, page).size(), 1U);
    const Item& item = document.Items[PageTotalsOf(document, page).front()];
    EXPECT_EQ(document.Names[item.Control], "total");
    EXPECT_EQ(document.Texts[item.Source].Text, "3");
  }
}

}  // namespace
}  // namespace tarvis
