// Composes the document of a run and makes a PDF of it, in place of the windows that would show it.
#pragma once

#include <ctime>
#include <string>

#include "pdf/paper_names.h"
#include "pictures/picture_file_loader.h"
#include "preview/output/pdf_info.h"
#include "preview/output/progress.h"
#include "report/engine/composer.h"
#include "report/paper_setup.h"
#include "run/desktop.h"

namespace tarvis {

struct PrintRun;

enum class DataInPdf { None, Attached };
enum class TagsInPdf { None, Written };

// What a PDF has besides its pages.
struct PdfExtras {
  DataInPdf Data = DataInPdf::None;
  TagsInPdf Tags = TagsInPdf::None;
};

// Needs the toolkit.
class DocumentMaker : public ProgramWindows {
 public:
  // `run` must outlive the object.
  DocumentMaker(PrintRun& run, const PaperSize& paper)
      : run_(run), paper_(paper), setup_(SetupForPaper(paper.Width, paper.Height)) {}

  // Composes the document that the preview would show of the run as it is prepared, and nothing more.
  void Check();
  // The PDF that the preview would save of it at that time; pages that are wider than the paper are shrunk to
  // it. Empty if `progress` cancels, which may be called in another thread and with a total of 0 as long as
  // that isn't known.
  std::string MakePdf(std::time_t created, const PdfExtras& extras, const Progress& progress);

  // No window, and no tool to come back by.
  void ShowPrintSetting() override {}
  void UnloadMasterReport() override {}

 private:
  Document Compose(PageTaker* taker);
  PdfInfo InfoOf(const Document& document, std::time_t created, const PdfExtras& extras) const;

  PrintRun& run_;
  PaperSize paper_;
  PageSetup setup_;
  PictureFileLoader pictures_;
};

}  // namespace tarvis
