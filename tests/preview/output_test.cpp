// The ways out of the preview: the system's print dialog with a real queue, and saving as PDF.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <atomic>
#include <thread>

#include "preview/full_disk.h"
#include "preview/pdf_file.h"
#include "preview/print_server.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class Output : public WindowTest {
 protected:
  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
  static void EnterPath(QFileDialog& dialog, const QString& path) {
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save), Qt::LeftButton);
  }
  // Enters a path into the dialog for saving and confirms.
  void SaveTo(const QString& path) {
    OnDialog<QFileDialog>([path](QFileDialog& dialog) { EnterPath(dialog, path); });
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(answered_);
  }
  static void Choose(QDialog& dialog, const char* radio) {
    auto* button = dialog.findChild<QRadioButton*>(QString::fromLatin1(radio));
    ASSERT_NE(button, nullptr) << radio;
    button->click();
  }
  static void Confirm(QDialog& dialog) {
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  }
  static void SetNumber(QDialog& dialog, const char* name, int value) {
    auto* box = dialog.findChild<QSpinBox*>(QString::fromLatin1(name));
    ASSERT_NE(box, nullptr) << name;
    box->setValue(value);
  }

  QTemporaryDir folder_;
};

TEST_F(Output, ctrl_s_proposes_the_title_and_writes_the_pdf) {
  OpenTable(3);
  QString proposed;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    proposed = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    dialog.reject();
  });
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(proposed, QStringLiteral("Parameter List.pdf"));
  Return();
  SaveTo(Path("list.pdf"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(Path("list.pdf")); }));
  EXPECT_EQ(PdfFact(Path("list.pdf"), "Pages"), QStringLiteral("3"));
  EXPECT_EQ(PdfFact(Path("list.pdf"), "Author"), QStringLiteral("Korvane"));
}

TEST_F(Output, a_title_that_is_no_file_name_is_made_one) {
  Open(DocumentBuilder("a/b:c").TablePages(1).Build());
  QString proposed;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    proposed = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    dialog.reject();
  });
  Click("savePdfButton");
  EXPECT_EQ(proposed, QStringLiteral("a_b_c.pdf"));
}

TEST_F(Output, overwriting_is_asked_for_first) {
  OpenTable(1);
  QFile old(Path("old.pdf"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("old");
  old.close();
  bool asked = false;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    OnDialog<QMessageBox>([&](QMessageBox& box) {
      asked = true;
      box.button(QMessageBox::No)->click();
    });
    EnterPath(dialog, Path("old.pdf"));
    dialog.reject();
  });
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(asked);
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  EXPECT_EQ(old.readAll(), QByteArray("old"));
}

TEST_F(Output, a_failed_save_is_told_and_the_preview_stays) {
  OpenTable(3);
  const FullDisk full;
  SaveTo(Path("list.pdf"));
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window_->findChild<QMessageBox*>(QStringLiteral("outputFailure")); }));
  EXPECT_TRUE(Find<QMessageBox>("outputFailure").informativeText().contains(Path("list.pdf")));
  EXPECT_TRUE(window_->isVisible());
  EXPECT_FALSE(QFile::exists(Path("list.pdf")));
}

TEST_F(Output, a_page_range_in_two_copies_arrives_at_the_queue) {
  OpenTable(5);
  OnDialog<QPrintDialog>([](QPrintDialog& dialog) {
    Choose(dialog, "printRange");
    SetNumber(dialog, "from", 2);
    SetNumber(dialog, "to", 3);
    SetNumber(dialog, "copies", 2);
    Confirm(dialog);
  });
  Press(Qt::Key_P, Qt::ControlModifier);
  ASSERT_TRUE(answered_);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window_->IsBusy(); }, 20'000));
  ASSERT_TRUE(PrintServer::Instance().WaitForJob(Path("received.pdf"), Path("printed.pdf")));
  EXPECT_EQ(PdfFact(Path("received.pdf"), "Pages"), QStringLiteral("2"));
  const QString text = PdfText(Path("received.pdf"));
  EXPECT_TRUE(text.contains(QStringLiteral("Page 2 / 5")) && text.contains(QStringLiteral("Page 3 / 5")));
  EXPECT_FALSE(text.contains(QStringLiteral("Page 1 / 5")) || text.contains(QStringLiteral("Page 4 / 5")));
  EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), QStringLiteral("4"));
}

TEST_F(Output, the_current_page_alone_can_be_printed) {
  OpenTable(5);
  View().GoTo({3, 0});
  OnDialog<QPrintDialog>([](QPrintDialog& dialog) {
    Choose(dialog, "printCurrentPage");
    Confirm(dialog);
  });
  Click("printButton");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window_->IsBusy(); }, 20'000));
  ASSERT_TRUE(PrintServer::Instance().WaitForJob(Path("received.pdf"), Path("printed.pdf")));
  EXPECT_EQ(PdfFact(Path("received.pdf"), "Pages"), QStringLiteral("1"));
  EXPECT_TRUE(PdfText(Path("received.pdf")).contains(QStringLiteral("Page 4 / 5")));
}

TEST_F(Output, a_printer_that_vanished_is_told) {
  OpenTable(1);
  QPrinter printer;
  printer.setOutputFileName(Path("gone/printed.pdf"));
  const QString error = PrintDocument(*DocumentBuilder().TablePages(1).Build(), printer,
                                      PrintScale::AsComposed, [](int, int) { return true; });
  EXPECT_FALSE(error.isEmpty());
}

TEST_F(Output, narrow_paper_is_told_with_the_choice_to_scale) {
  const auto document = DocumentBuilder().Page().Row({"a", "b", "c", "d"}, 720).Build();
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFileName(Path("narrow.pdf"));
  printer.setPageSize(QPageSize(QPageSize::A4));
  EXPECT_EQ(MissingWidth(*document, printer), 0);
  printer.setPageSize(QPageSize(QPageSize::A6));
  EXPECT_GT(MissingWidth(*document, printer), 1000);
  const auto always = [](int, int) { return true; };
  ASSERT_EQ(PrintDocument(*document, printer, PrintScale::FitToPaper, always), QString());
  const QString boxes =
      RunTool("pdftotext", {QStringLiteral("-bbox"), Path("narrow.pdf"), QStringLiteral("-")});
  EXPECT_TRUE(boxes.contains(QStringLiteral(">d</word>")));
}

TEST_F(Output, closing_the_window_while_an_export_runs_is_safe) {
  OpenTable(700);
  SaveTo(Path("long.pdf"));
  EXPECT_TRUE(window_->IsBusy());
  window_.reset();
  EXPECT_FALSE(QFile::exists(Path("long.pdf")));
}

TEST(BackgroundJob, a_long_job_shows_its_progress_and_can_be_cancelled) {
  QWidget window;
  window.show();
  std::atomic<bool> stopped = false;
  BackgroundJob job(
      QStringLiteral("Saving"),
      [&](const Progress& progress) {
        while (progress(1, 4)) std::this_thread::yield();
        stopped = true;
        return QString();
      },
      &window);
  const QSignalSpy finished(&job, &BackgroundJob::Finished);
  QElapsedTimer time;
  time.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.findChild<QProgressDialog*>() != nullptr; }));
  EXPECT_GE(time.elapsed(), 450);
  auto* dialog = window.findChild<QProgressDialog*>();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
  QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitFor([&] { return finished.count() == 1; }));
  EXPECT_TRUE(stopped);
  EXPECT_EQ(window.findChild<QProgressDialog*>(), nullptr);
}

TEST(BackgroundJob, a_short_job_shows_no_progress) {
  QWidget window;
  window.show();
  BackgroundJob job(
      QStringLiteral("Saving"), [](const Progress&) { return QStringLiteral("bad"); }, &window);
  const QSignalSpy finished(&job, &BackgroundJob::Finished);
  ASSERT_TRUE(QTest::qWaitFor([&] { return finished.count() == 1; }));
  EXPECT_EQ(finished.at(0).at(0).toString(), QStringLiteral("bad"));
  EXPECT_EQ(window.findChild<QProgressDialog*>(), nullptr);
}

}  // namespace
}  // namespace tarvis
