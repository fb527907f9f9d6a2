#include "preview/window/document_output.h"

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>
#include <QPageSize>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>

#include "preview/window/pdf_file_dialog.h"
#include "preview/window/print_dialog.h"

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

// Without a printer the toolkit takes A4 everywhere.
void UsePaperOf(const Document& document, QPrinter& printer) {
  const QSizeF points(static_cast<double>(document.Setup.Width / TwipsPerPoint),
                      static_cast<double>(document.Setup.Height / TwipsPerPoint));
  printer.setPageSize(QPageSize(points, QPageSize::Point));
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

QString DocumentOutput::ProposedPath() const {
  QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  if (!folder.exists()) folder = QDir::home();
  return folder.filePath(FileNameOf(QString::fromStdString(document_->Title)));
}

void DocumentOutput::SavePdf() {
  PdfFileDialog dialog(window_, ProposedPath());
  if (dialog.exec() != QDialog::Accepted) return;
  WritePdf(PdfSheets::AllOf(*document_), dialog.Path());
}

void DocumentOutput::WritePdf(PdfSheets sheets, const QString& path) {
  const PdfInfo info{QString::fromStdString(document_->Title), author_, QDateTime::currentDateTime()};
  StartJob(tr("Saving as PDF…"), tr("The PDF was not saved."),
           [document = document_, sheets = std::move(sheets), path, info](const Progress& progress) {
             return ExportPdf(*document, sheets, path, info, progress);
           });
}

void DocumentOutput::Print() {
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  const int count = static_cast<int>(document_->Pages.size());
  printer->setDocName(QString::fromStdString(document_->Title));
  printer->setCreator(QStringLiteral("Tarvis"));
  if (printer->outputFormat() == QPrinter::PdfFormat) UsePaperOf(*document_, *printer);
  PrintDialog dialog(*printer, count, ProposedPath(), window_);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::vector<int> pages = PagesInOrder(dialog.Choice(currentPage_()), count);
  if (pages.empty())
    return ShowFailure(tr("The document was not printed."), tr("The document has none of the chosen pages."));
  PrintScale scale = PrintScale::AsComposed;
  const QSizeF missing = MissingRoom(*document_, *printer);
  if (!missing.isNull() && !AskForScale(missing, scale)) return;
  if (dialog.IntoPdf())
    return WritePdf(SheetsLike(*document_, *printer, pages, scale), printer->outputFileName());
  StartJob(tr("Printing…"), tr("The document was not printed."),
           [document = document_, pages, printer, scale](const Progress& progress) {
             return PrintDocument(*document, pages, *printer, scale, progress);
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
    if (!error.isEmpty()) ShowFailure(failure, error);
  });
}

void DocumentOutput::ShowFailure(const QString& failure, const QString& reason) {
  auto* box =
      new QMessageBox(QMessageBox::Warning, window_->windowTitle(), failure, QMessageBox::Ok, window_);
  box->setObjectName(QStringLiteral("outputFailure"));
  box->setInformativeText(reason);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

}  // namespace tarvis
