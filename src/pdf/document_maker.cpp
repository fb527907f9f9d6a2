#include "pdf/document_maker.h"

#include "functions/catalog.h"
#include "platform/system/text_measurer.h"
#include "preview/output/pdf_press.h"
#include "report/data_files.h"
#include "report/master_document.h"
#include "report/rptTarvis.h"
#include "run/print_run.h"

namespace tarvis {

Document DocumentMaker::Compose(PageTaker* taker) {
  SelectHeaderOptions(run_, AllFunctions());
  rptTarvis report(ReportContext{run_, pictures_}, AllFunctions(), CreateFunctionReport, *this);
  Document document =
      ComposeMasterReport(run_, report, setup_, QtTextMeasurer(run_.CodePage.Number()), taker);
  run_.Session.MasterReport = nullptr;
  return document;
}

void DocumentMaker::Check() {
  Compose(nullptr);
}

std::string DocumentMaker::MakePdf(std::time_t created, DataInPdf data, const Progress& progress) {
  const PdfLook look{.Paper = QSizeF(paper_.Width, paper_.Height), .Scale = paper_.Width / setup_.Width};
  PdfPress press(look, run_.CodePage.Number(), progress);
  const Document document = Compose(&press);
  PdfInfo info{QString::fromStdString(document.Title), QString::fromStdString(run_.Header.MadeBy),
               QDateTime::fromSecsSinceEpoch(created)};
  if (data == DataInPdf::Attached) info.Data = DataFiles(run_, AllFunctions()).Read();
  return press.Finish(document, info);
}

}  // namespace tarvis
