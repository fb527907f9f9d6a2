#include "report/rptBaseHeader.h"

#include "text/date_text.h"
#include "text/text.h"

namespace tarvis {
namespace {

constexpr int HeaderTitleBytes = 58;

}  // namespace

rptBaseHeader::rptBaseHeader(ReportContext context, ReportFactory factory)
    : ActiveReport("rptBaseHeader", 14000), context_(context), factory_(std::move(factory)) {
  txtTitle.Reads.As = PartRole::Heading;
}

void rptBaseHeader::ActiveReport_ReportStart() {
  const HeaderOptions& header = Run.Session.ActiveHeader;
  ModuleIndex = 0;
  if (header.Title == 1) txtTitle.Text = LeftBytes(Run.CodePage, header.TitleText, HeaderTitleBytes);
  if (header.ModelsInfo == 1) txtMechaInfo.Text = Run.Header.MechaInfo;
  if (header.PrintDate == 1) txtPrnDate.Text = "Printing Date : " + LongDateText(Run.Now());
  if (header.FileName == 1 && !Run.Header.File.empty()) txtFileName.Text = "File Name : " + Run.Header.File;
}

void rptBaseHeader::ActiveReport_FetchData(bool& endOfData) {
  if (ModuleIndex > Run.Session.ModuleLast) {
    endOfData = true;
    return;
  }
  // An unknown name leaves the row empty: the report of the row before must not run again.
  sbrRegion.object = factory_(Run.Session.ModuleNames[ModuleIndex], context_);
  ++ModuleIndex;
  endOfData = false;
}

void rptBaseHeader::ActiveReport_ReportEnd() {
  ++Run.Session.FinishedReports;
  sbrRegion.object.reset();
}

}  // namespace tarvis
