// What the print dialog lets the user choose, and what of it arrives at a real queue.
#include <QCheckBox>

#include "preview/print_fixture.h"

namespace tarvis {
namespace {

// Chooses an option of the printer by its name, wherever the dialog has it.
void ChooseEntry(QDialog& properties, const char* name) {
  int found = 0;
  for (QComboBox* choice : properties.findChildren<QComboBox*>()) {
    const int entry = choice->findText(QString::fromLatin1(name));
    if (entry < 0) continue;
    ++found;
    choice->setCurrentIndex(entry);
  }
  EXPECT_EQ(found, 1) << name;
}

TEST_F(Print, APageRangeInTwoCopiesArrivesAtTheQueue) {
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

TEST_F(Print, ThePdfThatWouldBeSavedArrivesAtTheQueue) {
  OpenTable(3);
  ExpectPrinting();
  EXPECT_TRUE(PdfFact(Path("received.pdf"), "Producer").startsWith(QStringLiteral("Tarvis")));
  EXPECT_EQ(PdfFact(Path("received.pdf"), "Title"), QStringLiteral("Parameter List"));
}

TEST_F(Print, ARangeStartsWithAllPages) {
  OpenTable(5);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              EXPECT_TRUE(In<QAbstractButton>(dialog, "printAll").isChecked());
              Choose(dialog, "printRange");
              EnterNumber(dialog, "from", 4);
            }),
            QStringList({"4", "5"}));
}

TEST_F(Print, PagesAndRangesOfThemArriveAtTheQueue) {
  OpenTable(6);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) { EnterPages(dialog, "5,1-2"); }),
            QStringList({"1", "2", "5"}));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("3")) << "nobody chooses a second time";
}

TEST_F(Print, ChosenPagesCanComeLastOneFirst) {
  OpenTable(6);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              EnterPages(dialog, "1-2,5");
              Choose(dialog, "reverse");
            }),
            QStringList({"5", "2", "1"}));
}

TEST_F(Print, OddAndEvenPagesGoByTheirNumbers) {
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

TEST_F(Print, PagesThatWereTypedCountForNothingWhenAllAreChosenAfterThat) {
  OpenTable(3);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              EnterPages(dialog, "2");
              Choose(dialog, "printAll");
            }),
            QStringList({"1", "2", "3"}));
}

TEST_F(Print, PagesThatAreNotInTheDocumentAreReported) {
  OpenTable(3);
  PrintWith([](QPrintDialog& dialog) { EnterPages(dialog, "7-9"); });
  EXPECT_EQ(ReadFailure(), QStringLiteral("The document has none of the chosen pages."));
}

TEST_F(Print, CopiesAreCollatedUnlessChosenOtherwise) {
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

TEST_F(Print, TheCurrentPageAloneCanBePrinted) {
  OpenTable(5);
  View().GoTo({3, 0});
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) { Choose(dialog, "printCurrentPage"); }),
            QStringList({"4"}));
}

TEST_F(Print, TheCurrentPageIsPrintedWhetherOddOrEvenPagesWereChosenBefore) {
  OpenTable(5);
  View().GoTo({3, 0});
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) {
              In<QComboBox>(dialog, "pageSetCombo").setCurrentText(QStringLiteral("Even Pages"));
              Choose(dialog, "printCurrentPage");
            }),
            QStringList({"4"}));
}

TEST_F(Print, TheLastPageCanComeFirst) {
  OpenTable(3);
  EXPECT_EQ(PagesPrintedWith([](QPrintDialog& dialog) { Choose(dialog, "reverse"); }),
            QStringList({"3", "2", "1"}));
}

TEST_F(Print, BothSidesAreAskedFor) {
  OpenTable(2);
  PrintWith([](QPrintDialog& dialog) {
    OpenOptions(dialog);
    Choose(dialog, "duplexLong");
  });
  TakeJob();
  EXPECT_EQ(Asked("sides"), QStringLiteral("two-sided-long-edge"));
}

TEST_F(Print, ColoursArriveAsGreysIfThatIsChosen) {
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

TEST_F(Print, ThePrintersPropertiesAreOfferedAndArriveAtTheQueue) {
  OpenTable(4);
  PrintWith([this](QPrintDialog& dialog) {
    EXPECT_TRUE(In<QPushButton>(dialog, "properties").isVisible());
    UsePaper(dialog, [](QDialog& properties) {
      In<QComboBox>(properties, "pagesPerSheetCombo").setCurrentIndex(1);
      ChooseEntry(properties, "Lower Tray");
      ChooseEntry(properties, "Upper Left");
    });
  });
  TakeJob();
  EXPECT_EQ(Asked("number-up"), QStringLiteral("2"));
  EXPECT_EQ(Asked("InputSlot"), QStringLiteral("Lower"));
  EXPECT_EQ(Asked("StapleLocation"), QStringLiteral("UpperLeft"));
}

TEST_F(Print, NoOptionOfThePrinterIsAskedForThatNobodyHasChosen) {
  OpenTable(1);
  ExpectPrinting();
  for (const char* option : {"InputSlot", "StapleLocation"}) EXPECT_EQ(Asked(option), QString()) << option;
  EXPECT_EQ(Asked("number-up"), QStringLiteral("1"));
}

TEST_F(Print, PagesPerSheetGoTogetherWithAPageSet) {
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

TEST_F(Print, ThePrintersOwnPaperIsUsedUnlessAnotherOneIsChosen) {
  OpenTable(1);
  ExpectPrinting();
  EXPECT_EQ(Asked("media"), QStringLiteral("A4"));
  EXPECT_TRUE(PdfFact(Path("printed.pdf"), "Page size").contains(QStringLiteral("A4")));
}

}  // namespace
}  // namespace tarvis
