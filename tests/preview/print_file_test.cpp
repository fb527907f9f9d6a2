// Printing into a file: the PDF that saving makes, with what the print dialog lets choose.
#include <sys/stat.h>

#include <QFileDialog>
#include <QToolButton>

#include "preview/print_fixture.h"
#include "support/full_disk.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

class PrintFile : public Print {
 protected:
  static void ChooseFile(QPrintDialog& dialog, const QString& path) {
    auto& printers = In<QComboBox>(dialog, "printers");
    printers.setCurrentIndex(printers.count() - 1);
    In<QLineEdit>(dialog, "filename").setText(path);
  }
  // Prints into "printed.pdf" after `set`.
  void PrintInto(const std::function<void(QPrintDialog&)>& set) {
    PrintWith([&](QPrintDialog& dialog) {
      ChooseFile(dialog, Path("printed.pdf"));
      set(dialog);
    });
  }
  QStringList PagesPrintedInto(const std::function<void(QPrintDialog&)>& set) {
    QFile::remove(Path("printed.pdf"));
    PrintInto(set);
    return Pages("printed.pdf");
  }
  // Asks for printing into `path`, expects a message, answers it by `answer`, and closes the dialog that is
  // still there. Returns the message.
  QString TryToPrintInto(const QString& path, QMessageBox::StandardButton answer) {
    QString words;
    OnDialog<QPrintDialog>([&](QPrintDialog& dialog) {
      ChooseFile(dialog, path);
      OnDialog<QMessageBox>([&](QMessageBox& box) {
        words = box.text();
        QTest::mouseClick(box.button(answer), Qt::LeftButton);
      });
      Confirm(dialog);
      EXPECT_TRUE(dialog.isVisible());
      dialog.reject();
    });
    Press(Qt::Key_P, Qt::ControlModifier);
    Return();
    EXPECT_FALSE(window_->IsBusy());
    return words;
  }
  void WriteOldFile() const {
    QFile file(Path("printed.pdf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("old");
  }
  QByteArray Bytes() const {
    QFile file(Path("printed.pdf"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  // Of the contents entries in the file, in their order.
  QStringList Bookmarks() const {
    const QString outline =
        RunTool("mutool", {QStringLiteral("show"), Path("printed.pdf"), QStringLiteral("outline")});
    QStringList names;
    static const QRegularExpression name(QStringLiteral("\"([^\"]*)\".*page=(\\d+)"));
    for (auto found = name.globalMatch(outline); found.hasNext();) {
      const QRegularExpressionMatch entry = found.next();
      names.append(entry.captured(1) + QLatin1Char(' ') + entry.captured(2));
    }
    return names;
  }
};

TEST_F(PrintFile, HasBookmarksAuthorAndTitleAsASavedOneHas) {
  DocumentBuilder builder;
  Open(builder.TablePages(3).Entry("Parameter", 0, 0, 720).Entry("Comment", 0, 2, 720).Build());
  PrintInto([](QPrintDialog&) {});
  EXPECT_EQ(Pages("printed.pdf"), QStringList({"1", "2", "3"}));
  EXPECT_EQ(Bookmarks(), QStringList({"Parameter 1", "Comment 3"}));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Author"), QStringLiteral("Korvane"));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Title"), QStringLiteral("Parameter List"));
  EXPECT_TRUE(PdfFact(Path("printed.pdf"), "Page size").startsWith(QStringLiteral("595.3 x 841.9")));
}

TEST_F(PrintFile, HasTheTagsAndDataThatWereChosenWhenSavingLast) {
  readData_ = [] { return std::vector<NamedBytes>{{"User.tmp", "File-Spec,3\r\n"}}; };
  OpenTable(2);
  PrintInto([](QPrintDialog&) {});
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Tagged"), QStringLiteral("no"));
  QFile::remove(Path("printed.pdf"));
  memory_->IsTagged = true;
  memory_->AttachesData = true;
  OpenTable(2);
  PrintInto([](QPrintDialog& dialog) { EnterPages(dialog, "2"); });
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Tagged"), QStringLiteral("yes"));
  EXPECT_TRUE(RunTool("pdfdetach", {QStringLiteral("-list"), Path("printed.pdf")})
                  .contains(QStringLiteral("User.tmp")));
  EXPECT_EQ(Pages("printed.pdf"), QStringList({"2"}));
}

TEST_F(PrintFile, IsNotWrittenIfTheDataThatBelongToItHaveChanged) {
  readData_ = []() -> std::vector<NamedBytes> {
    throw RunTimeFailure("changed", {.File = "User.tmp", .Line = 0, .Key = {}, .Text = {}});
  };
  memory_->AttachesData = true;
  OpenTable(1);
  PrintInto([](QPrintDialog&) {});
  EXPECT_TRUE(ReadFailure().contains(QStringLiteral("User.tmp")));
  EXPECT_FALSE(QFile::exists(Path("printed.pdf")));
}

TEST_F(PrintFile, BookmarksLeadToThePagesThatWereChosenAndToNoOthers) {
  DocumentBuilder builder;
  builder.TablePages(6).Entry("Target", 0, 0, 720).Entry("Trace", 1, 1, 720).Entry("Comment", 1, 3, 720);
  Open(builder.Entry("Data", 0, 4, 720).Entry("Graph", 1, 5, 720).Build());
  PrintInto([](QPrintDialog& dialog) { EnterPages(dialog, "2,5"); });
  EXPECT_EQ(Bookmarks(), QStringList({"Target 1", "Trace 1", "Data 2"}));
}

TEST_F(PrintFile, TakesSinglePagesAndRanges) {
  OpenTable(6);
  EXPECT_EQ(PagesPrintedInto([](QPrintDialog& dialog) { EnterPages(dialog, "5,1-2"); }),
            QStringList({"1", "2", "5"}));
  Return();
  EXPECT_EQ(PagesPrintedInto([](QPrintDialog& dialog) {
              Choose(dialog, "printRange");
              EnterNumber(dialog, "from", 2);
              EnterNumber(dialog, "to", 3);
            }),
            QStringList({"2", "3"}));
}

TEST_F(PrintFile, TakesOddOrEvenPagesTheLastOneFirst) {
  OpenTable(6);
  EXPECT_EQ(PagesPrintedInto([](QPrintDialog& dialog) {
              Choose(dialog, "reverse");
              auto& set = In<QComboBox>(dialog, "pageSetCombo");
              EXPECT_TRUE(set.isEnabled());
              set.setCurrentText(QStringLiteral("Even Pages"));
            }),
            QStringList({"6", "4", "2"}));
}

TEST_F(PrintFile, TakesTheCurrentPageAlone) {
  OpenTable(5);
  View().GoTo({3, 0});
  EXPECT_EQ(PagesPrintedInto([](QPrintDialog& dialog) { Choose(dialog, "printCurrentPage"); }),
            QStringList({"4"}));
}

TEST_F(PrintFile, HoldsAsManyCopiesAsAreAskedForCollatedOrNot) {
  OpenTable(2);
  EXPECT_EQ(PagesPrintedInto([](QPrintDialog& dialog) { EnterNumber(dialog, "copies", 2); }),
            QStringList({"1", "2", "1", "2"}));
  Return();
  EXPECT_EQ(PagesPrintedInto([](QPrintDialog& dialog) {
              EnterNumber(dialog, "copies", 2);
              auto& collate = In<QAbstractButton>(dialog, "collate");
              QTest::mouseClick(&collate, Qt::LeftButton, Qt::NoModifier, QPoint(8, collate.height() / 2));
            }),
            QStringList({"1", "1", "2", "2"}));
}

TEST_F(PrintFile, IsGreyIfThatIsChosen) {
  Open(DocumentBuilder().TablePages(1).Box({1440, 9000, 600, 600}, 0xFF0000).Build());
  PrintInto([](QPrintDialog&) {});
  EXPECT_TRUE(IsColourful("printed.pdf"));
  Return();
  QFile::remove(Path("printed.pdf"));
  PrintInto([](QPrintDialog& dialog) {
    OpenOptions(dialog);
    Choose(dialog, "grayscale");
  });
  EXPECT_EQ(Pages("printed.pdf"), QStringList({"1"}));
  EXPECT_FALSE(IsColourful("printed.pdf"));
}

TEST_F(PrintFile, IsScaledToNarrowPaperIfThatIsWanted) {
  OpenTable(1);
  PrintInto([&](QPrintDialog& dialog) {
    UsePaper(dialog, UseA5);
    OnDialog<QMessageBox>([](QMessageBox& box) {
      for (QAbstractButton* button : box.buttons())
        if (button->text().contains(QStringLiteral("fit"))) button->click();
    });
  });
  EXPECT_TRUE(PdfFact(Path("printed.pdf"), "Page size").startsWith(QStringLiteral("420 x 595")))
      << PdfFact(Path("printed.pdf"), "Page size").toStdString();
  constexpr double UnitLeft = (1440 + 3 * 1700 + 30) / 20.0;
  EXPECT_NEAR(LeftOfUnit("printed.pdf"), UnitLeft * 420 / 595.3, 0.5);
}

TEST_F(PrintFile, KeepsTheOldFileAndNothingElseOnAFullDiskAndSaysSo) {
  OpenTable(3);
  WriteOldFile();
  {
    const FullDisk full;
    PrintInto([&](QPrintDialog&) {
      OnDialog<QMessageBox>(
          [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
    });
  }
  EXPECT_TRUE(ReadFailure().contains(Path("printed.pdf")));
  EXPECT_EQ(Bytes(), QByteArray("old"));
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"printed.pdf"}));
}

TEST_F(PrintFile, ReplacesAFileOnlyIfTheUserAgrees) {
  OpenTable(1);
  WriteOldFile();
  EXPECT_TRUE(
      TryToPrintInto(Path("printed.pdf"), QMessageBox::No).contains(QStringLiteral("already exists")));
  EXPECT_EQ(Bytes(), QByteArray("old"));
}

TEST_F(PrintFile, NeverReplacesAFifoAndDoesNotWaitForItsReader) {
  OpenTable(1);
  const QString fifo = Path("fifo");
  ASSERT_EQ(mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
  EXPECT_TRUE(TryToPrintInto(fifo, QMessageBox::Ok).contains(QStringLiteral("not an ordinary file")));
  struct stat now = {};
  ASSERT_EQ(stat(fifo.toLocal8Bit().constData(), &now), 0);
  EXPECT_TRUE(S_ISFIFO(now.st_mode));
}

TEST_F(PrintFile, IsWrittenToTheUsersHomeByANameThatIsNoPath) {
  OpenTable(1);
  const QByteArray before = qgetenv("HOME");
  qputenv("HOME", folder_.path().toLocal8Bit());
  PrintWith([](QPrintDialog& dialog) { ChooseFile(dialog, QStringLiteral("printed.pdf")); });
  qputenv("HOME", before);
  EXPECT_EQ(Pages("printed.pdf"), QStringList({"1"}));
}

TEST_F(PrintFile, CanBeChosenInTheDialogForSavingAndIsAskedForOnce) {
  OpenTable(1);
  WriteOldFile();
  int questions = 0;
  PrintWith([&](QPrintDialog& dialog) {
    OnDialog<QFileDialog>([&](QFileDialog& files) {
      OnDialog<QMessageBox>([&](QMessageBox& box) {
        ++questions;
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
      });
      In<QLineEdit>(files, "fileNameEdit").setFocus();
      In<QLineEdit>(files, "fileNameEdit").setText(Path("printed.pdf"));
      QTest::mouseClick(files.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save), Qt::LeftButton);
    });
    QTest::mouseClick(&In<QToolButton>(dialog, "fileBrowser"), Qt::LeftButton);
    EXPECT_EQ(In<QLineEdit>(dialog, "filename").text(), Path("printed.pdf"));
  });
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(Pages("printed.pdf"), QStringList({"1"}));
}

}  // namespace
}  // namespace tarvis
