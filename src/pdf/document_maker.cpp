#include "pdf/document_maker.h"

#include "functions/catalog.h"
#include "platform/system/text_measurer.h"
#include "preview/output/pdf_export.h"
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

PdfInfo DocumentMaker::InfoOf(const Document& document, std::time_t created, const PdfExtras& extras) const {
  PdfInfo info{QString::fromStdString(document.Title), QString::fromStdString(run_.Header.MadeBy),
               QDateTime::fromSecsSinceEpoch(created)};
  if (extras.Data == DataInPdf::Attached) info.Data = DataFiles(run_, AllFunctions()).Read();
  info.IsTagged = extras.Tags == TagsInPdf::Written;
  return info;
}

// Tags need the structure of the whole document, so its pages are then painted when it is composed.
std::string DocumentMaker::MakePdf(std::time_t created, const PdfExtras& extras, const Progress& progress) {
  const PdfLook look{.Paper = QSizeF(paper_.Width, paper_.Height), .Scale = paper_.Width / setup_.Width};
  if (extras.Tags == TagsInPdf::Written) {
    const Document document = Compose(nullptr);
    const PdfSheets sheets{look, PdfSheets::AllOf(document).Pages};
    return tarvis::MakePdf(document, sheets, InfoOf(document, created, extras), progress);
  }
  PdfPress press(look, run_.CodePage.Number(), progress);
  const Document document = Compose(&press);
  return press.Finish(document, InfoOf(document, created, extras));
}

}  // namespace tarvis
