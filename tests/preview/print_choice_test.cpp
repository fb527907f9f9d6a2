// What the print dialog lets the user choose, and what of it arrives at a real queue.
#include <QCheckBox>

#include "preview/print_fixture.h"

namespace tarvis {
namespace {

TEST_F(Print, a_page_range_in_two_copies_arrives_at_the_queue) {
  OpenTable(5);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              Choose(dialog, "printRange");
              EnterNumber(dialog, "from", 2);
              EnterNumber(dialog, "to", 3);
              EnterNumber(dialog, "copies", 2);
            }),
            QStringList({"2", "3"}));
  EXPECT_EQ(Asked("copies"), QStringLiteral("2"));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("4"));
  EXPECT_EQ(Asked("job-name"), QStringLiteral("Parameter List"));
}

TEST_F(Print, a_range_starts_with_all_pages) {
  OpenTable(5);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              EXPECT_TRUE(In<QAbstractButton>(dialog, "printAll").isChecked());
              Choose(dialog, "printRange");
              EnterNumber(dialog, "from", 4);
            }),
            QStringList({"4", "5"}));
}

TEST_F(Print, pages_and_ranges_of_them_arrive_at_the_queue) {
  OpenTable(6);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) { EnterPages(dialog, "5,1-2"); }),
            QStringList({"1", "2", "5"}));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("3")) << "nobody chooses a second time";
}

TEST_F(Print, chosen_pages_can_come_last_one_first) {
  OpenTable(6);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              EnterPages(dialog, "1-2,5");
              Choose(dialog, "reverse");
            }),
            QStringList({"5", "2", "1"}));
}

TEST_F(Print, odd_and_even_pages_go_by_their_numbers) {
  OpenTable(6);
  const auto choose = [](const char* pages, const char* set) {
    return [pages, set](QPrintDialog& dialog) {
      EnterPages(dialog, pages);
      In<QComboBox>(dialog, "pageSetCombo").setCurrentText(QString::fromLatin1(set));
    };
  };
  EXPECT_EQ(PagesPrintedWith(choose("2,4-5", "Even Pages")), QStringList({"2", "4"}));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("2")) << "nobody chooses a second time";
  Return();
  EXPECT_EQ(PagesPrintedWith(choose("2-3,5", "Odd Pages")), QStringList({"3", "5"}));
  Return();
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              Choose(dialog, "reverse");
              In<QComboBox>(dialog, "pageSetCombo").setCurrentText(QStringLiteral("Even Pages"));
            }),
            QStringList({"6", "4", "2"}));
}

TEST_F(Print, pages_that_were_typed_count_for_nothing_when_all_are_chosen_after_that) {
  OpenTable(3);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              EnterPages(dialog, "2");
              Choose(dialog, "printAll");
            }),
            QStringList({"1", "2", "3"}));
}

TEST_F(Print, pages_that_are_not_in_the_document_are_told) {
  OpenTable(3);
  PrintWith([](QPrintDialog& dialog) { EnterPages(dialog, "7-9"); });
  EXPECT_EQ(ReadFailure(), QStringLiteral("The document has none of the chosen pages."));
}

TEST_F(Print, copies_are_collated_unless_told_otherwise) {
  OpenTable(2);
  PrintWith([](QPrintDialog& dialog) {
    EnterNumber(dialog, "copies", 2);
    EXPECT_TRUE(In<QCheckBox>(dialog, "collate").isChecked());
  });
  TakeJob();
  EXPECT_EQ(Asked("Collate"), QStringLiteral("true"));
  Return();
  PrintWith([](QPrintDialog& dialog) {
    EnterNumber(dialog, "copies", 2);
    auto& collate = In<QCheckBox>(dialog, "collate");
    QTest::mouseClick(&collate, Qt::LeftButton, Qt::NoModifier, QPoint(8, collate.height() / 2));
  });
  TakeJob();
  EXPECT_EQ(Asked("Collate"), QString());
  EXPECT_EQ(Asked("copies"), QStringLiteral("2"));
}

TEST_F(Print, the_current_page_alone_can_be_printed) {
  OpenTable(5);
  View().GoTo({3, 0});
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) { Choose(dialog, "printCurrentPage"); }),
            QStringList({"4"}));
}

TEST_F(Print, the_current_page_is_printed_whether_odd_or_even_pages_were_chosen_before) {
  OpenTable(5);
  View().GoTo({3, 0});
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              In<QComboBox>(dialog, "pageSetCombo").setCurrentText(QStringLiteral("Even Pages"));
              Choose(dialog, "printCurrentPage");
            }),
            QStringList({"4"}));
}

TEST_F(Print, the_last_page_can_come_first) {
  OpenTable(3);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) { Choose(dialog, "reverse"); }),
            QStringList({"3", "2", "1"}));
}

TEST_F(Print, both_sides_are_asked_for) {
  OpenTable(2);
  PrintWith([](QPrintDialog& dialog) {
    OpenOptions(dialog);
    Choose(dialog, "duplexLong");
  });
  TakeJob();
  EXPECT_EQ(Asked("sides"), QStringLiteral("two-sided-long-edge"));
}

TEST_F(Print, colours_arrive_as_greys_if_that_is_chosen) {
  Open(DocumentBuilder().TablePages(1).Box({1440, 9000, 600, 600}, 0xFF0000).Build());
  const auto choose = [this](const char* mode) {
    PrintWith([mode](QPrintDialog& dialog) {
      OpenOptions(dialog);
      Choose(dialog, mode);
    });
    TakeJob();
    return IsColourful("received.pdf");
  };
  EXPECT_FALSE(choose("grayscale"));
  Return();
  EXPECT_TRUE(choose("color"));
}

TEST_F(Print, the_printers_properties_are_offered_and_arrive_at_the_queue) {
  OpenTable(4);
  PrintWith([this](QPrintDialog& dialog) {
    EXPECT_TRUE(In<QPushButton>(dialog, "properties").isVisible());
    UsePaper(dialog, [](QDialog& properties) {
      In<QComboBox>(properties, "pagesPerSheetCombo").setCurrentIndex(1);
      for (QComboBox* choice : properties.findChildren<QComboBox*>()) {
        const int tray = choice->findText(QStringLiteral("Lower Tray"));
        if (tray >= 0) choice->setCurrentIndex(tray);
      }
    });
  });
  TakeJob();
  EXPECT_EQ(Asked("number-up"), QStringLiteral("2"));
  EXPECT_EQ(Asked("InputSlot"), QStringLiteral("Lower"));
}

TEST_F(Print, pages_per_sheet_go_together_with_a_page_set) {
  OpenTable(6);
  EXPECT_EQ(PagesPrintedWith([this](QPrintDialog& dialog) {
              UsePaper(dialog, [](QDialog& properties) {
                In<QComboBox>(properties, "pagesPerSheetCombo").setCurrentIndex(1);
              });
              In<QComboBox>(dialog, "pageSetCombo").setCurrentText(QStringLiteral("Odd Pages"));
            }),
            QStringList({"1", "3", "5"}));
  EXPECT_EQ(Asked("number-up"), QStringLiteral("2"));
}

TEST_F(Print, the_printers_own_paper_is_used_unless_another_one_is_chosen) {
  OpenTable(1);
  ExpectPrinting();
  EXPECT_EQ(Asked("media"), QStringLiteral("A4"));
  EXPECT_TRUE(PdfFact(Path("printed.pdf"), "Page size").contains(QStringLiteral("A4")));
}

}  // namespace
}  // namespace tarvis
