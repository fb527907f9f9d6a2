#include "report/rptTarvis.h"

#include "report/data_set.h"
#include "report/rptBaseHeader.h"
#include "run/failures.h"

namespace tarvis {

void SelectHeaderOptions(PrintRun& run, FunctionTable functions) {
  if (const PrintFunction* function = FindFunction(functions, run.Session.Mode))
    run.Session.ActiveHeader = run.Options.*function->Header;
}

rptTarvis::rptTarvis(ReportContext context, FunctionTable functions, ReportFactory factory,
                     ProgramWindows& windows)
    : ActiveReport("rptTarvis", MasterPrintWidth),
      context_(context),
      functions_(functions),
      factory_(std::move(factory)),
      windows_(windows) {
  Caption = "Print Preview";
  Detail.NewPageBefore = true;
  txtPageNumber.Summary = Summary::PageNumber;
  txtPageCount.Summary = Summary::PageCount;
  PageFooter.BeforePrint = [this] { PageFooter_BeforePrint(); };
}

void rptTarvis::ActiveReport_ReportStart() {
  PrintSession& session = Run.Session;
  function_ = FindFunction(functions_, session.Mode);
  ModuleIndex = 0;
  ModuleCount = CountMasterRows(Run, function_);
  Tools.push_back({"Editing of the Printing Items", EditItemsTool});
  OverlapIndex = 0;
  session.FinishedReports = 0;
  session.TocGroup.clear();
  TOCVisible = true;
  TOCWidth = 2300;
}

bool rptTarvis::Overlaps() const {
  return function_ != nullptr && function_->Overlap != nullptr;
}

void rptTarvis::ActiveReport_FetchData(bool& endOfData) {
  if (ModuleIndex >= ModuleCount) {
    endOfData = true;
    return;
  }
  endOfData = false;
  if (Run.Options.Cover == 1 && ModuleIndex == 0) {
    sbrModule.object = factory_("rptCover", context_);
  } else if (PassGate()) {
    LoadNextDataSet();
    sbrModule.object = std::make_shared<rptBaseHeader>(context_, factory_);
  } else {
    sbrModule.object.reset();
    return;
  }
  ++ModuleIndex;
}

// Overlapped data sets share one record: the next file waits until the report before it has reached its end.
// With an engine that runs sub-reports to their end the gate never closes; twice in a row would be for ever.
bool rptTarvis::PassGate() {
  if (!Overlaps()) return true;
  const bool open = ModuleIndex <= Run.Session.FinishedReports;
  if (!open && gateWasClosed_) {
    throw RunTimeFailure("the report before has not reached its end",
                         {.File = Name, .Line = 0, .Key = {}, .Text = {}});
  }
  gateWasClosed_ = !open;
  return open;
}

void rptTarvis::LoadNextDataSet() {
  if (function_ == nullptr) return;
  if (!Overlaps()) return LoadDataSet(Run, *function_, {}, DataSetKind::Data);
  const bool isResult = OverlapIndex == 0 && Run.Session.OverlapMode != 0;
  LoadDataSet(Run, *function_, OverlapIndex == 0 ? std::string() : std::to_string(OverlapIndex),
              isResult ? DataSetKind::OverlapResult : DataSetKind::Data);
  ++OverlapIndex;
}

void rptTarvis::ActiveReport_ReportEnd() {
  sbrModule.object.reset();
}

void rptTarvis::ActiveReport_QueryClose(int closeMode) {
  if (closeMode == 0) EndRun(Run);
}

void rptTarvis::ActiveReport_ToolbarClick(int toolId) {
  if (toolId == EditItemsTool) {
    windows_.UnloadMasterReport();
    windows_.ShowPrintSetting();
  } else if (toolId == CloseTool) {
    EndRun(Run);
  }
}

void rptTarvis::PageFooter_BeforePrint() {
  ShowPageNumbers(Run.Session.ActiveHeader.Pages == 1);
}

void rptTarvis::ShowPageNumbers(bool visible) {
  Label1.Visible = visible;
  Label2.Visible = visible;
  txtPageCount.Visible = visible;
  txtPageNumber.Visible = visible;
}

}  // namespace tarvis
