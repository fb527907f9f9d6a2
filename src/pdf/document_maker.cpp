#include "pdf/document_maker.h"

#include "functions/catalog.h"
#include "platform/system/text_measurer.h"
#include "preview/output/pdf_export.h"
#include "report/master_document.h"
#include "report/paper_setup.h"
#include "report/rptTarvis.h"
#include "run/print_run.h"

namespace tarvis {

const Document& DocumentMaker::Compose() {
  SelectHeaderOptions(run_, AllFunctions());
  rptTarvis report(ReportContext{run_, pictures_}, AllFunctions(), CreateFunctionReport, *this);
  document_ = ComposeMasterReport(run_, report, SetupForPaper(paper_.Width, paper_.Height),
                                  QtTextMeasurer(run_.CodePage.Number()));
  run_.Session.MasterReport = nullptr;
  files_.emplace(run_, AllFunctions());
  return document_;
}

std::string DocumentMaker::MakePdf(std::time_t created, DataInPdf data, const Progress& progress) const {
  PdfInfo info{QString::fromStdString(document_.Title), QString::fromStdString(run_.Header.MadeBy),
               QDateTime::fromSecsSinceEpoch(created)};
  if (data == DataInPdf::Attached && files_) info.Data = files_->Read();
  PdfSheets sheets = PdfSheets::AllOf(document_);
  sheets.Scale = paper_.Width / document_.Setup.Width;
  sheets.Paper = QSizeF(paper_.Width, paper_.Height);
  return tarvis::MakePdf(document_, sheets, info, progress);
}

}  // namespace tarvis
