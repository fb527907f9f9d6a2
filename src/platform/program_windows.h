// The program's windows: the dialog and the preview, one at a time, and the change between them.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "pictures/picture_file_loader.h"
#include "platform/help_opener.h"
#include "run/desktop.h"

namespace tarvis {

struct PreviewMemory;
class PreviewWindow;
class rptTarvis;
struct PrintRun;

class QtProgramWindows : public QObject, public ProgramWindows {
 public:
  // `run` must outlive the windows.
  explicit QtProgramWindows(PrintRun& run);
  ~QtProgramWindows() override;

  void ShowPrintSetting() override;
  void UnloadMasterReport() override;

  // While the windows block the event loop for long, they call `answer` repeatedly.
  void AnswerEndRequestsWith(std::function<void()> answer) { answerEndRequest_ = std::move(answer); }

  // Cancels what the preview is saving or printing, so that the process can end without leaving an incomplete
  // file.
  void StopWork();

 private:
  // Composes the master report and shows its document.
  void ShowPrintPreview();

  PrintRun& run_;
  std::shared_ptr<PreviewMemory> memory_;
  HelpOpener help_;
  std::function<void()> answerEndRequest_;
  PictureFileLoader pictures_;
  // The master report handles the preview's events, so it is kept until the next one is shown.
  std::unique_ptr<rptTarvis> report_;
  std::unique_ptr<PreviewWindow> preview_;
};

}  // namespace tarvis
