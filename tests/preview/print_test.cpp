// Printing from the preview: the system's print dialog with a real queue, and what arrives there.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <thread>

#include "preview/pdf_file.h"
#include "preview/print_server.h"
#include "preview/sample_picture.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

constexpr double UnitLeft = (1440 + 3 * 1700 + 30) / 20.0;  // points, on paper of the document's own size

class Print : public WindowTest {
 protected:
  // A part of the dialog by its object name.
  template <typename Part>
  static Part& In(QDialog& dialog, const char* name) {
    auto* part = dialog.findChild<Part*>(QString::fromLatin1(name));
    if (part == nullptr) throw std::runtime_error(std::string("no part ") + name);
    return *part;
  }
  static void Choose(QDialog& dialog, const char* button) {
    auto& choice = In<QAbstractButton>(dialog, button);
    QTest::mouseClick(&choice, Qt::LeftButton, Qt::NoModifier, QPoint(8, choice.height() / 2));
    EXPECT_TRUE(choice.isChecked()) << button;
  }
  static void EnterNumber(QDialog& dialog, const char* name, int number) {
    auto& box = In<QSpinBox>(dialog, name);
    box.selectAll();
    QTest::keyClicks(&box, QString::number(number));
  }
  // The second page of what the dialog shows on demand.
  static void OpenOptions(QDialog& dialog) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text().contains(QStringLiteral("Options"))) QTest::mouseClick(button, Qt::LeftButton);
    }
    In<QTabWidget>(dialog, "tabs").setCurrentIndex(1);
  }
  static void EnterPages(QDialog& dialog, const char* pages) {
    Choose(dialog, "pagesRadioButton");
    QTest::keyClicks(&In<QLineEdit>(dialog, "pagesLineEdit"), QString::fromLatin1(pages));
  }
  static void Confirm(QDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
  }
  // Confirms the dialog of Ctrl+P after `set`, waits until the printing is over, and takes what arrived.
  void PrintWith(const std::function<void(QPrintDialog&)>& set) {
    OnDialog<QPrintDialog>([&](QPrintDialog& dialog) {
      set(dialog);
      Confirm(dialog);
    });
    Press(Qt::Key_P, Qt::ControlModifier);
    ASSERT_TRUE(answered_);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window_->IsBusy(); }, 20'000));
  }
  void TakeJob() {
    job_ = PrintServer::Instance().NextJob(Path("received.pdf"), Path("printed.pdf"));
    ASSERT_FALSE(job_.isEmpty());
  }
  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
  QString Asked(const char* option) const { return job_.value(QString::fromLatin1(option)).toString(); }
  // The numbers of the pages in a file, in their order, as their foot tells them.
  QStringList Pages(const char* file) const {
    QStringList numbers;
    static const QRegularExpression foot(QStringLiteral("Page (\\d+) /"));
    for (auto found = foot.globalMatch(PdfText(Path(file))); found.hasNext();)
      numbers.append(found.next().captured(1));
    return numbers;
  }
  // Whether any dot of the first page in a file is no grey.
  bool IsColourful(const char* file) const {
    RunTool("pdftoppm", {QStringLiteral("-singlefile"), QStringLiteral("-png"), QStringLiteral("-r"),
                         QStringLiteral("40"), Path(file), Path("page")});
    const QImage page(Path("page.png"));
    if (page.isNull()) throw std::runtime_error("no picture of the page");
    return !page.allGray();
  }
  // Sets the paper in the printer's properties.
  void UsePaper(QPrintDialog& dialog, const std::function<void(QDialog&)>& set) {
    OnDialog<QDialog>([&](QDialog& properties) {
      set(properties);
      Confirm(properties);
    });
    QTest::mouseClick(&In<QPushButton>(dialog, "properties"), Qt::LeftButton);
  }
  static void UseA5(QDialog& properties) {
    In<QComboBox>(properties, "pageSizeCombo").setCurrentText(QStringLiteral("A5"));
  }
  // Prints on paper that is too small and answers the question by a click on `answer`.
  void PrintOnSmallPaper(const std::function<void(QDialog&)>& paper, const QString& answer) {
    PrintWith([&](QPrintDialog& dialog) {
      UsePaper(dialog, paper);
      OnDialog<QMessageBox>([&](QMessageBox& box) {
        question_ = box.text();
        for (QAbstractButton* button : box.buttons()) {
          if (button->text().remove(QLatin1Char('&')) == answer)
            return QTest::mouseClick(button, Qt::LeftButton);
        }
        ADD_FAILURE() << "no button " << answer.toStdString();
        box.reject();
      });
    });
  }
  // The message that a failure shows, closed by its button.
  QString ReadFailure() {
    const auto box = [this] { return window_->findChild<QMessageBox*>(QStringLiteral("outputFailure")); };
    if (!QTest::qWaitFor([&] { return box() != nullptr && box()->isVisible(); })) return {};
    QString text = box()->informativeText();
    QTest::mouseClick(box()->button(QMessageBox::Ok), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box() == nullptr; }));
    Return();
    return text;
  }
  // Prints twelve pages and stops in the midst of them.
  std::shared_ptr<HoldingPicture> StartAndHold() {
    auto picture = std::make_shared<HoldingPicture>();
    Open(DocumentBuilder().TablePages(12).Picture(picture, {1440, 15000, 600, 600}).Build());
    picture->Hold();
    OnDialog<QPrintDialog>([](QPrintDialog& dialog) { Confirm(dialog); });
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture->Holds(); }, 20'000));
    EXPECT_TRUE(window_->IsBusy());
    return picture;
  }
  // Left edge of the first "Hz" that arrived, in points.
  double LeftOfUnit() const {
    const QString boxes =
        RunTool("pdftotext", {QStringLiteral("-bbox"), Path("received.pdf"), QStringLiteral("-")});
    static const QRegularExpression unit(QStringLiteral("xMin=\"([0-9.]+)\"[^>]*>Hz<"));
    return unit.match(boxes).captured(1).toDouble();
  }
  void ExpectPrinting() {
    PrintWith([](QPrintDialog&) {});
    TakeJob();
    EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), PdfFact(Path("received.pdf"), "Pages"));
  }

  // Has the printer vanish in the midst of a print and expects that to be told.
  void LoseWhilePrinting(const std::function<bool(PrintServer&)>& lose) {
    const auto picture = StartAndHold();
    EXPECT_TRUE(lose(PrintServer::Instance()));
    picture->Release();
    const QString failure = ReadFailure();
    EXPECT_TRUE(failure.contains(QStringLiteral("\"DemoPDF\" did not take the document")))
        << failure.toStdString();
    EXPECT_TRUE(window_->isVisible());
  }

  QTemporaryDir folder_;
  QJsonObject job_;
  QString question_;
};

TEST_F(Print, a_page_range_in_two_copies_arrives_at_the_queue) {
  OpenTable(5);
  PrintWith([](QPrintDialog& dialog) {
    Choose(dialog, "printRange");
    EnterNumber(dialog, "from", 2);
    EnterNumber(dialog, "to", 3);
    EnterNumber(dialog, "copies", 2);
  });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"2", "3"}));
  EXPECT_EQ(Asked("copies"), QStringLiteral("2"));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("4"));
  EXPECT_EQ(Asked("job-name"), QStringLiteral("Parameter List"));
}

TEST_F(Print, a_range_starts_with_all_pages) {
  OpenTable(5);
  PrintWith([](QPrintDialog& dialog) {
    EXPECT_TRUE(In<QAbstractButton>(dialog, "printAll").isChecked());
    Choose(dialog, "printRange");
    EnterNumber(dialog, "from", 4);
  });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"4", "5"}));
}

TEST_F(Print, pages_and_ranges_of_them_arrive_at_the_queue) {
  OpenTable(6);
  PrintWith([](QPrintDialog& dialog) { EnterPages(dialog, "5,1-2"); });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"1", "2", "5"}));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("3")) << "nobody chooses a second time";
}

TEST_F(Print, chosen_pages_can_come_last_one_first) {
  OpenTable(6);
  PrintWith([](QPrintDialog& dialog) {
    EnterPages(dialog, "1-2,5");
    Choose(dialog, "reverse");
  });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"5", "2", "1"}));
}

TEST_F(Print, odd_and_even_pages_go_by_their_numbers) {
  OpenTable(6);
  const auto choose = [](const char* pages, const char* set) {
    return [pages, set](QPrintDialog& dialog) {
      EnterPages(dialog, pages);
      In<QComboBox>(dialog, "pageSetCombo").setCurrentText(QString::fromLatin1(set));
    };
  };
  PrintWith(choose("2,4-5", "Even Pages"));
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"2", "4"}));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("2")) << "nobody chooses a second time";
  Return();
  PrintWith(choose("2-3,5", "Odd Pages"));
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"3", "5"}));
  Return();
  PrintWith([](QPrintDialog& dialog) {
    Choose(dialog, "reverse");
    In<QComboBox>(dialog, "pageSetCombo").setCurrentText(QStringLiteral("Even Pages"));
  });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"6", "4", "2"}));
}

TEST_F(Print, pages_that_were_typed_count_for_nothing_when_all_are_chosen_after_that) {
  OpenTable(3);
  PrintWith([](QPrintDialog& dialog) {
    EnterPages(dialog, "2");
    Choose(dialog, "printAll");
  });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"1", "2", "3"}));
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
  PrintWith([](QPrintDialog& dialog) { Choose(dialog, "printCurrentPage"); });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"4"}));
}

TEST_F(Print, the_last_page_can_come_first) {
  OpenTable(3);
  PrintWith([](QPrintDialog& dialog) { Choose(dialog, "reverse"); });
  TakeJob();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"3", "2", "1"}));
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

TEST_F(Print, the_printers_own_paper_is_used_unless_another_one_is_chosen) {
  OpenTable(1);
  ExpectPrinting();
  EXPECT_EQ(Asked("media"), QStringLiteral("A4"));
  EXPECT_TRUE(PdfFact(Path("printed.pdf"), "Page size").contains(QStringLiteral("A4")));
}

TEST_F(Print, narrow_paper_is_told_and_the_pages_can_be_scaled_to_it) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Scale to fit"));
  TakeJob();
  EXPECT_TRUE(question_.contains(QStringLiteral("too narrow"))) << question_.toStdString();
  EXPECT_EQ(Asked("media"), QStringLiteral("A5"));
  EXPECT_NEAR(LeftOfUnit(), UnitLeft * 420 / 595.3, 0.5);
}

TEST_F(Print, narrow_paper_can_be_printed_on_as_it_is) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Print as it is"));
  TakeJob();
  EXPECT_NEAR(LeftOfUnit(), UnitLeft, 0.5);
}

TEST_F(Print, narrow_paper_can_be_a_reason_not_to_print) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Cancel"));
  EXPECT_FALSE(question_.isEmpty());
  Return();
  ExpectPrinting();
  EXPECT_EQ(Asked("media"), QStringLiteral("A4")) << "nothing was printed before";
}

TEST_F(Print, paper_that_lies_across_is_too_short_and_told) {
  OpenTable(1);
  PrintOnSmallPaper([](QDialog& properties) { Choose(properties, "landscape"); },
                    QStringLiteral("Scale to fit"));
  TakeJob();
  EXPECT_TRUE(question_.contains(QStringLiteral("too short"))) << question_.toStdString();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"1"})) << "the foot of the page is there";
}

TEST_F(Print, a_queue_that_is_removed_while_printing_is_told_and_the_preview_can_print_again) {
  LoseWhilePrinting([](PrintServer& server) { return server.RemoveQueue(); });
  ASSERT_TRUE(PrintServer::Instance().RestoreQueue());
  ExpectPrinting();
}

TEST_F(Print, a_server_that_stops_while_printing_is_told_and_the_preview_can_print_again) {
  LoseWhilePrinting([](PrintServer& server) { return server.StopServer(); });
  ASSERT_TRUE(PrintServer::Instance().StartServer());
  ExpectPrinting();
}

TEST_F(Print, a_file_can_be_printed_into) {
  Open(DocumentBuilder().TablePages(1).Box({1440, 9000, 600, 600}, 0xFF0000).Build());
  PrintWith([this](QPrintDialog& dialog) {
    auto& printers = In<QComboBox>(dialog, "printers");
    printers.setCurrentIndex(printers.count() - 1);
    In<QLineEdit>(dialog, "filename").setText(Path("printed.pdf"));
  });
  EXPECT_EQ(Pages("printed.pdf"), QStringList({"1"}));
  EXPECT_TRUE(IsColourful("printed.pdf"));
}

TEST_F(Print, a_file_that_cannot_be_written_is_told) {
  QPrinter printer;
  printer.setOutputFileName(Path("gone/printed.pdf"));
  const QString error = PrintDocument(*DocumentBuilder().TablePages(1).Build(), printer,
                                      PrintScale::AsComposed, [](int, int) { return true; });
  EXPECT_FALSE(error.isEmpty());
}

TEST_F(Print, closing_the_window_while_a_print_runs_cancels_it) {
  const auto picture = StartAndHold();
  const auto* job = window_->findChild<BackgroundJob*>();
  ASSERT_NE(job, nullptr);
  std::thread release([job, picture] {
    while (!job->Cancelled()) std::this_thread::yield();
    picture->Release();
  });
  window_.reset();
  release.join();
  OpenTable(1);
  ExpectPrinting();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"1"}));
}

}  // namespace
}  // namespace tarvis
