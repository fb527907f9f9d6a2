#include "preview/window/document_output.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageRanges>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>

#include "preview/output/pdf_export.h"

namespace tarvis {
namespace {

// The title as a file name that every system takes.
QString FileNameOf(const QString& title) {
  QString name = title;
  for (QChar& character : name) {
    if (character.unicode() < 0x20 || QStringLiteral("\\/:*?\"<>|").contains(character))
      character = QLatin1Char('_');
  }
  name = name.trimmed();
  return (name.isEmpty() ? QStringLiteral("document") : name) + QStringLiteral(".pdf");
}

// The dialog refuses every text of its field "Pages" until the printer has the page ranges, which it sets
// only after that.
void TakeOverPagesAsTyped(QPrintDialog& dialog, QPrinter& printer) {
  const auto* pages = dialog.findChild<QLineEdit*>(QStringLiteral("pagesLineEdit"));
  if (pages == nullptr) return;  // the system's own dialog
  QObject::connect(pages, &QLineEdit::textChanged, &dialog,
                   [&printer](const QString& text) { printer.setPageRanges(QPageRanges::fromString(text)); });
}

// Nor does the dialog hand on the choice between colours and greys.
void TakeOverColours(const QPrintDialog& dialog, QPrinter& printer) {
  const auto* greys = dialog.findChild<QAbstractButton*>(QStringLiteral("grayscale"));
  if (greys == nullptr) return;  // the system's own dialog
  printer.setColorMode(greys->isChecked() ? QPrinter::GrayScale : QPrinter::Color);
}

}  // namespace

DocumentOutput::DocumentOutput(std::shared_ptr<const Document> document, QString author,
                               std::function<int()> currentPage, QWidget* window)
    : QObject(window),
      document_(std::move(document)),
      author_(std::move(author)),
      currentPage_(std::move(currentPage)),
      window_(window) {}

DocumentOutput::~DocumentOutput() = default;

void DocumentOutput::SavePdf() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString title = QString::fromStdString(document_->Title);
  QFileDialog dialog(window_, tr("Save as PDF"), folder, tr("PDF files (*.pdf)"));
  dialog.setObjectName(QStringLiteral("savePdfDialog"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(FileNameOf(title));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const QString path = dialog.selectedFiles().front();
  const PdfInfo info{title, author_, QDateTime::currentDateTime()};
  StartJob(tr("Saving as PDF…"), tr("The PDF was not saved."),
           [document = document_, path, info](const Progress& progress) {
             return ExportPdf(*document, path, info, progress);
           });
}

void DocumentOutput::Print() {
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  const int count = static_cast<int>(document_->Pages.size());
  printer->setDocName(QString::fromStdString(document_->Title));
  printer->setCreator(QStringLiteral("Tarvis"));
  QPrintDialog dialog(printer.get(), window_);
  dialog.setObjectName(QStringLiteral("printDialog"));
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                    QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintCurrentPage);
  dialog.setMinMax(1, std::max(1, count));
  dialog.setFromTo(1, std::max(1, count));  // what the range starts from when it is chosen
  dialog.setPrintRange(QAbstractPrintDialog::AllPages);
  TakeOverPagesAsTyped(dialog, *printer);
  if (dialog.exec() != QDialog::Accepted) return;
  TakeOverColours(dialog, *printer);
  if (dialog.printRange() == QAbstractPrintDialog::CurrentPage) {
    printer->setFromTo(currentPage_() + 1, currentPage_() + 1);
  }
  PrintScale scale = PrintScale::AsComposed;
  const QSizeF missing = MissingRoom(*document_, *printer);
  if (!missing.isNull() && !AskForScale(missing, scale)) return;
  StartJob(tr("Printing…"), tr("The document was not printed."),
           [document = document_, printer, scale](const Progress& progress) {
             return PrintDocument(*document, *printer, scale, progress);
           });
}

// False if the user would rather not print.
bool DocumentOutput::AskForScale(const QSizeF& missing, PrintScale& scale) {
  QMessageBox box(QMessageBox::Question, window_->windowTitle(),
                  missing.width() > 0
                      ? tr("The paper is too narrow for the pages: their right edge would be cut off.")
                      : tr("The paper is too short for the pages: their lower edge would be cut off."),
                  QMessageBox::NoButton, window_);
  box.setObjectName(QStringLiteral("smallPaper"));
  const QAbstractButton* shrink = box.addButton(tr("&Scale to fit"), QMessageBox::AcceptRole);
  box.addButton(tr("&Print as it is"), QMessageBox::DestructiveRole);
  const QAbstractButton* cancel = box.addButton(QMessageBox::Cancel);
  box.exec();
  if (box.clickedButton() == shrink) scale = PrintScale::FitToPaper;
  return box.clickedButton() != nullptr && box.clickedButton() != cancel;
}

void DocumentOutput::StartJob(const QString& caption, const QString& failure, BackgroundJob::Work work) {
  if (job_) return;
  job_ = std::make_unique<BackgroundJob>(caption, std::move(work), window_);
  connect(job_.get(), &BackgroundJob::Finished, this, [this, failure](const QString& error) {
    job_.release()->deleteLater();
    if (error.isEmpty()) return;
    auto* box =
        new QMessageBox(QMessageBox::Warning, window_->windowTitle(), failure, QMessageBox::Ok, window_);
    box->setObjectName(QStringLiteral("outputFailure"));
    box->setInformativeText(error);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
  });
}

}  // namespace tarvis
