// Composes the document of a run and makes a PDF of it, in place of the windows that would show it.
#pragma once

#include <ctime>
#include <optional>
#include <string>

#include "pdf/paper_names.h"
#include "pictures/picture_file_loader.h"
#include "preview/output/progress.h"
#include "report/data_files.h"
#include "report/engine/document.h"
#include "run/desktop.h"

namespace tarvis {

struct PrintRun;

enum class DataInPdf { None, Attached };

// Needs the toolkit. Pictures must last as long as the document, so this object must, too.
class DocumentMaker : public ProgramWindows {
 public:
  // `run` must outlive the object.
  DocumentMaker(PrintRun& run, const PaperSize& paper) : run_(run), paper_(paper) {}

  // The document that the preview would show of the run as it is prepared.
  const Document& Compose();
  // The PDF that the preview would save at that time; pages that are wider than the paper are shrunk to it.
  // With `data` it holds the data files, too. Empty if `progress` cancels.
  std::string MakePdf(std::time_t created, DataInPdf data, const Progress& progress) const;

  // No window, and no tool to come back by.
  void ShowPrintSetting() override {}
  void UnloadMasterReport() override {}

 private:
  PrintRun& run_;
  PaperSize paper_;
  PictureFileLoader pictures_;
  Document document_;
  std::optional<DataFiles> files_;  // as they were when the document was composed
};

}  // namespace tarvis
