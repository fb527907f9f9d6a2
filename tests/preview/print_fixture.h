// The print dialog over a real queue, and what arrives there.
#pragma once

#include <QComboBox>
#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>

#include "preview/pdf_file.h"
#include "preview/print_server.h"
#include "preview/sample_picture.h"
#include "preview/window_fixture.h"

namespace tarvis {

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
  // The numbers of the pages in a file, in their order, as they are at their feet.
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
  // The numbers of the pages that arrive when this is set in the dialog.
  QStringList PagesPrintedWith(const std::function<void(QPrintDialog&)>& set) {
    PrintWith(set);
    TakeJob();
    return Pages("received.pdf");
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
  // Left edge of the first "Hz" in a file, in points.
  double LeftOfUnit(const char* file = "received.pdf") const {
    const QString boxes = RunTool("pdftotext", {QStringLiteral("-bbox"), Path(file), QStringLiteral("-")});
    static const QRegularExpression unit(QStringLiteral("xMin=\"([0-9.]+)\"[^>]*>Hz<"));
    return unit.match(boxes).captured(1).toDouble();
  }
  void ExpectPrinting() {
    PrintWith([](QPrintDialog&) {});
    TakeJob();
    EXPECT_EQ(PdfFact(Path("printed.pdf"), "Pages"), PdfFact(Path("received.pdf"), "Pages"));
  }

  // Has the printer vanish in the midst of a print and expects that to be reported with its reason.
  void LoseWhilePrinting(const std::function<bool(PrintServer&)>& lose, const char* reason) {
    const auto picture = StartAndHold();
    EXPECT_TRUE(lose(PrintServer::Instance()));
    picture->Release();
    const QString failure = ReadFailure();
    EXPECT_TRUE(failure.contains(QStringLiteral("\"DemoPDF\" did not take the document")))
        << failure.toStdString();
    EXPECT_TRUE(failure.contains(QLatin1String(reason))) << failure.toStdString();
    EXPECT_TRUE(window_->isVisible());
  }

  QTemporaryDir folder_;
  QJsonObject job_;
  QString question_;
};

}  // namespace tarvis
