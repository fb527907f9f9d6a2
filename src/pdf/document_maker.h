// Composes the document of a run and makes a PDF of it, in place of the windows that would show it.
#pragma once

#include <ctime>
#include <string>

#include "pdf/paper_names.h"
#include "pictures/picture_file_loader.h"
#include "preview/output/progress.h"
#include "report/engine/document.h"
#include "run/desktop.h"

namespace tarvis {

struct PrintRun;

// Needs the toolkit. Pictures must last as long as the document, so this object must, too.
class DocumentMaker : public ProgramWindows {
 public:
  // `run` must outlive the object.
  DocumentMaker(PrintRun& run, const PaperSize& paper) : run_(run), paper_(paper) {}

  // The document that the preview would show of the run as it is prepared.
  const Document& Compose();
  // The PDF that the preview would save at that time; pages that are wider than the paper are shrunk to it.
  // Empty if `progress` cancels.
  std::string MakePdf(std::time_t created, const Progress& progress) const;

  // No window, and no tool to come back by.
  void ShowPrintSetting() override {}
  void UnloadMasterReport() override {}

 private:
  PrintRun& run_;
  PaperSize paper_;
  PictureFileLoader pictures_;
  Document document_;
};

}  // namespace tarvis
