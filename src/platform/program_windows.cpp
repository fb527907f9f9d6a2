#include "platform/program_windows.h"

#include <QApplication>
#include <QPixmapCache>

#include "dialogs/PrintSetting.h"
#include "functions/catalog.h"
#include "platform/paper.h"
#include "platform/system/text_measurer.h"
#include "preview/window/preview_window.h"
#include "report/data_files.h"
#include "report/master_document.h"
#include "report/rptTarvis.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

// Shows the busy pointer during its lifetime, also if an exception is thrown.
class BusyPointer {
 public:
  BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyPointer() { QApplication::restoreOverrideCursor(); }
};

std::shared_ptr<const Document> ComposeOnDefaultPaper(PrintRun& run, rptTarvis& report) {
  const BusyPointer busy;
  return std::make_shared<const Document>(
      ComposeMasterReport(run, report, DefaultPaper(), QtTextMeasurer(run.CodePage.Number())));
}

PreviewSetup SetupOf(const ActiveReport& report, const PrintRun& run,
                     const std::shared_ptr<PreviewMemory>& memory) {
  return {.Caption = QString::fromStdString(report.Caption),
          .Tools = report.Tools,
          .ContentsVisible = report.TOCVisible,
          .ContentsWidth = report.TOCWidth,
          .Origin = {.Author = QString::fromStdString(run.Header.MadeBy),
                     .DataFile = QString::fromStdString(run.Header.File),
                     .ReadData = [files = DataFiles(run, AllFunctions())] { return files.Read(); }},
          .Memory = memory};
}

}  // namespace

QtProgramWindows::QtProgramWindows(PrintRun& run)
    : run_(run), memory_(std::make_shared<PreviewMemory>()), pictures_([this] {
        if (answerEndRequest_) answerEndRequest_();
      }) {
  qApp->installEventFilter(&help_);
}

QtProgramWindows::~QtProgramWindows() = default;

void QtProgramWindows::ShowPrintSetting() {
  const auto setHelp = [this](const std::string& helpFile, std::int32_t helpContextId) {
    help_.SetHelpFile(helpFile);
    help_.SetContext(helpContextId);
  };
  // The toolkit keeps the icons of all windows that were there, and uses those of none again.
  QPixmapCache::clear();
  // It shows and deletes itself.
  new PrintSetting(run_, {.ShowPrintPreview = [this] { ShowPrintPreview(); }, .SetHelp = setHelp});
}

// The preview has no help, whatever the dialog had.
void QtProgramWindows::ShowPrintPreview() {
  help_.SetHelpFile({});
  SelectHeaderOptions(run_, AllFunctions());
  pictures_.Forget();  // the host may have drawn them again
  report_ = std::make_unique<rptTarvis>(ReportContext{run_, pictures_}, AllFunctions(), CreateFunctionReport,
                                        *this);
  const std::shared_ptr<const Document> document =
      ComposeOnDefaultPaper(run_, *report_);  // fills caption and tools, too
  preview_ = std::make_unique<PreviewWindow>(document, SetupOf(*report_, run_, memory_));
  connect(preview_.get(), &PreviewWindow::toolUsed, this,
          [this](int id) { report_->ActiveReport_ToolbarClick(id); });
  connect(preview_.get(), &PreviewWindow::closedByUser, this,
          [this] { report_->ActiveReport_QueryClose(0); });
  preview_->show();
}

void QtProgramWindows::UnloadMasterReport() {
  run_.Session.MasterReport = nullptr;
  preview_->hide();
  preview_.release()->deleteLater();  // its own event may have called this
}

void QtProgramWindows::StopWork() {
  if (preview_ != nullptr) preview_->close();
}

}  // namespace tarvis
