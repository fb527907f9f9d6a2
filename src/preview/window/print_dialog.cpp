#include "preview/window/print_dialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPrinter>
#include <QToolButton>
#include <algorithm>

#include "preview/window/overwrite_question.h"
#include "preview/window/pdf_file_dialog.h"

namespace tarvis {
namespace {

// Parts are null in the system's own dialog, which some desktops show instead.
template <typename Part>
Part* Find(const QPrintDialog& dialog, const char* name) {
  return dialog.findChild<Part*>(QString::fromLatin1(name));
}

bool IsChecked(const QPrintDialog& dialog, const char* name) {
  const auto* button = Find<QAbstractButton>(dialog, name);
  return button != nullptr && button->isChecked();
}

}  // namespace

PrintDialog::PrintDialog(QPrinter& printer, int pageCount, const QString& pdf, QWidget* parent)
    : QPrintDialog(&printer, parent) {
  setObjectName(QStringLiteral("printDialog"));
  setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
             QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintCurrentPage |
             QAbstractPrintDialog::PrintShowPageSize);
  const int last = std::max(1, pageCount);
  setMinMax(1, last);
  setFromTo(1, last);  // what the range starts from when it is chosen
  setPrintRange(QAbstractPrintDialog::AllPages);
  // The dialog refuses every text of its field "Pages" until the printer has page ranges, which it sets only
  // after that.
  if (const auto* pages = Find<QLineEdit>(*this, "pagesLineEdit"))
    connect(pages, &QLineEdit::textChanged, this,
            [&printer](const QString& text) { printer.setPageRanges(QPageRanges::fromString(text)); });
  OfferPdf(pdf);
}

// The toolkit would open what is already at the path, which may hang, and would look for it in another folder
// than the one it writes to. It knows neither where the last PDF was saved nor names with quotes.
void PrintDialog::OfferPdf(const QString& path) {
  auto* file = Find<QLineEdit>(*this, "filename");
  auto* browse = Find<QToolButton>(*this, "fileBrowser");
  auto* printers = Find<QComboBox>(*this, "printers");
  auto* buttons = findChild<QDialogButtonBox*>();
  if (file == nullptr || browse == nullptr || printers == nullptr || buttons == nullptr) return;
  file->setText(path);
  disconnect(buttons, &QDialogButtonBox::accepted, this, nullptr);
  connect(buttons, &QDialogButtonBox::accepted, this, &PrintDialog::CheckFile);
  disconnect(browse, &QToolButton::clicked, nullptr, nullptr);
  connect(browse, &QToolButton::clicked, this, [this, file, printers] {
    PdfFileDialog dialog(this, file->text());
    if (dialog.exec() != QDialog::Accepted) return;
    agreed_ = dialog.Path();
    file->setText(agreed_);
    printers->setCurrentIndex(printers->count() - 1);  // the file is the last one
  });
  // By then the toolkit has laid out the dialog.
  connect(printers, &QComboBox::currentIndexChanged, this, &PrintDialog::OfferAllPages);
  if (const auto* current = Find<QAbstractButton>(*this, "printCurrentPage"))
    connect(current, &QAbstractButton::toggled, this, &PrintDialog::OfferAllPages);
}

void PrintDialog::setVisible(bool visible) {
  QPrintDialog::setVisible(visible);
  if (visible) OfferAllPages();
}

// The toolkit disables single pages and page sets where a file is written. We choose the pages ourselves.
void PrintDialog::OfferAllPages() {
  if (auto* pages = Find<QWidget>(*this, "pagesRadioButton")) pages->setEnabled(true);
  if (auto* set = Find<QWidget>(*this, "pageSetCombo"))
    set->setDisabled(IsChecked(*this, "printCurrentPage"));
}

void PrintDialog::CheckFile() {
  auto* file = Find<QLineEdit>(*this, "filename");
  if (file->isEnabled()) {  // or else a printer is chosen
    file->setText(QDir::home().absoluteFilePath(file->text()));
    if (file->text() != agreed_ && !MayWriteTo(file->text(), this)) return;
  }
  accept();
}

// The toolkit doesn't pass the choice of greys to a printer.
void PrintDialog::accept() {
  QPrintDialog::accept();
  if (result() == QDialog::Accepted && IsChecked(*this, "grayscale"))
    printer()->setColorMode(QPrinter::GrayScale);
}

bool PrintDialog::IntoPdf() const {
  return printer()->outputFormat() == QPrinter::PdfFormat;
}

QPageRanges PrintDialog::TypedRanges() const {
  if (IsChecked(*this, "pagesRadioButton"))
    return QPageRanges::fromString(Find<QLineEdit>(*this, "pagesLineEdit")->text());
  return printRange() == QAbstractPrintDialog::PageRange ? printer()->pageRanges() : QPageRanges();
}

PageChoice PrintDialog::Choice(int currentPage) const {
  PageChoice choice;
  choice.LastFirst = printer()->pageOrder() == QPrinter::LastPageFirst;
  choice.Copies = printer()->supportsMultipleCopies() ? 1 : std::max(1, printer()->copyCount());
  choice.Collated = printer()->collateCopies();
  if (printRange() == QAbstractPrintDialog::CurrentPage) {
    choice.Ranges.addPage(currentPage + 1);
    return choice;
  }
  choice.Ranges = TypedRanges();
  if (const auto* set = Find<QComboBox>(*this, "pageSetCombo"))
    choice.Set = static_cast<PageSet>(set->currentIndex());  // all, odd, even
  return choice;
}

}  // namespace tarvis
