#include "preview/window/document_output.h"

#include <QAbstractButton>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPageSize>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

#include "preview/output/whole_file.h"
#include "preview/paint/toolkit_geometry.h"
#include "preview/window/pdf_file_dialog.h"
#include "preview/window/print_dialog.h"
#include "preview/window/save_dialog.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

// How long a window that is closed waits for a print system that is stuck.
constexpr std::chrono::seconds PatienceWithPrinters(3);

// The host's name for its file without folder and ending; folders are separated as on the host's system.
QString ShortName(const QString& dataFile) {
  const QString name = dataFile.section(QRegularExpression(QStringLiteral("[\\\\/]")), -1);
  return name.contains(QLatin1Char('.')) ? name.section(QLatin1Char('.'), 0, -2) : name;
}

// A file name with the title, the name of the data and the day, which is valid on every system.
QString FileNameOf(const QString& title, const QString& dataFile, const QString& ending) {
  const QString day = QDate::currentDate().toString(Qt::ISODate);
  QString name = QStringList{title.trimmed(), ShortName(dataFile).trimmed(), day}.join(QLatin1Char(' '));
  for (QChar& character : name) {
    if (character.unicode() < 0x20 || QStringLiteral("\\/:*?\"<>|").contains(character))
      character = QLatin1Char('_');
  }
  return name.simplified() + QLatin1Char('.') + ending;
}

// Without a printer the toolkit takes A4 everywhere.
void UsePaperOf(const Document& document, QPrinter& printer) {
  printer.setPageSize(QPageSize(PaperSizeOf(document) / TwipsPerPoint, QPageSize::Point));
}

}  // namespace

DocumentOutput::DocumentOutput(std::shared_ptr<const Document> document, DocumentOrigin origin,
                               std::shared_ptr<PreviewMemory> memory, std::function<int()> currentPage,
                               QWidget* window)
    : QObject(window),
      document_(std::move(document)),
      origin_(std::move(origin)),
      memory_(std::move(memory)),
      currentPage_(std::move(currentPage)),
      window_(window) {}

DocumentOutput::~DocumentOutput() = default;

void DocumentOutput::Cancel() {
  if (!IsBusy()) return;
  job_.reset();
  emit BusyChanged();
}

QString DocumentOutput::ProposedPath(const QString& title, const QString& ending) const {
  QDir folder(memory_->Folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                        : memory_->Folder);
  if (!folder.exists()) folder = QDir::home();
  return folder.filePath(FileNameOf(title, origin_.DataFile, ending));
}

QString DocumentOutput::ProposedPdf() const {
  return ProposedPath(QString::fromStdString(document_->Title), QStringLiteral("pdf"));
}

void DocumentOutput::SavePdf() {
  if (IsBusy()) return;
  PdfFileDialog dialog(window_, ProposedPdf());
  if (origin_.ReadData) dialog.OfferData(memory_->AttachesData);
  dialog.OfferTags(memory_->IsTagged);
  if (dialog.exec() != QDialog::Accepted) return;
  memory_->AttachesData = dialog.AttachesData();
  memory_->IsTagged = dialog.IsTagged();
  WritePdf(PdfSheets::AllOf(*document_), dialog.Path());
}

std::optional<PdfInfo> DocumentOutput::Info() {
  PdfInfo info{QString::fromStdString(document_->Title), origin_.Author, QDateTime::currentDateTime()};
  info.IsTagged = memory_->IsTagged;
  try {
    if (memory_->AttachesData && origin_.ReadData) info.Data = origin_.ReadData();
  } catch (const RunTimeFailure& failure) {
    ShowFailure(tr("The PDF was not saved."), QString::fromStdString(failure.what()));
    return std::nullopt;
  }
  return info;
}

void DocumentOutput::WritePdf(PdfSheets sheets, const QString& path) {
  const std::optional<PdfInfo> info = Info();
  if (!info) return;
  StartJob(
      tr("Saving as PDF…"), tr("The PDF was not saved."),
      [document = document_, sheets = std::move(sheets), path, info](const Progress& progress) {
        return ExportPdf(*document, sheets, path, *info, progress);
      },
      [this, path] { NoteSaved(path); });
}

void DocumentOutput::NoteSaved(const QString& path) {
  memory_->Folder = QFileInfo(path).absolutePath();
  emit Saved(path);
}

void DocumentOutput::SaveGraph(const PlacedGraph& graph) {
  const QString title = GraphTitle(*document_, graph);
  SaveDialog dialog(window_, tr("Save graph as"), ProposedPath(title, QStringLiteral("svg")),
                    tr("SVG drawings (*.svg)") + QStringLiteral(";;") + tr("PNG pictures (*.png)"));
  dialog.setObjectName(QStringLiteral("saveGraphDialog"));
  if (dialog.exec() != QDialog::Accepted) return;
  const QString path = dialog.Path();
  const bool inPixels = QFileInfo(path).suffix().compare(QStringLiteral("png"), Qt::CaseInsensitive) == 0;
  const QString failure =
      WriteWholeFile(inPixels ? GraphAsPng(*document_, graph) : GraphAsSvg(*document_, graph, title),
                     QFileInfo(path).filesystemFilePath());
  if (!failure.isEmpty()) return ShowFailure(tr("The graph was not saved."), failure);
  NoteSaved(path);
}

void DocumentOutput::Print() {
  if (IsBusy()) return;
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  const int count = static_cast<int>(document_->Pages.size());
  printer->setDocName(QString::fromStdString(document_->Title));
  printer->setCreator(QStringLiteral("Tarvis"));
  if (printer->outputFormat() == QPrinter::PdfFormat) UsePaperOf(*document_, *printer);
  PrintDialog dialog(*printer, count, ProposedPdf(), window_);
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
  job_->WaitAtMost(PatienceWithPrinters);
}

// False if the user cancels.
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

void DocumentOutput::StartJob(const QString& caption, const QString& failure, BackgroundJob::Work work,
                              const std::function<void()>& done) {
  job_ = std::make_unique<BackgroundJob>(caption, std::move(work), window_);
  emit BusyChanged();
  connect(job_.get(), &BackgroundJob::Finished, this, [this, failure, done](const QString& error) {
    const bool cancelled = job_->Cancelled();
    job_.release()->deleteLater();
    emit BusyChanged();
    if (!error.isEmpty()) return ShowFailure(failure, error);
    if (!cancelled) done();
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
