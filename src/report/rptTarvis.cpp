#include "report/rptTarvis.h"

#include <array>

#include "report/data_set.h"
#include "report/rptBaseHeader.h"
#include "run/failures.h"

namespace tarvis {
namespace {

using HeaderOfMode = HeaderOptions PrintOptions::*;

struct ModeHeader {
  tarvis::Mode Mode;
  HeaderOfMode Header;
};

constexpr std::array<ModeHeader, 9> ModeHeaders{{
    {Mode::User, &PrintOptions::UserHeader},
    {Mode::UPWizard, &PrintOptions::PrmWizHeader},
    {Mode::Trace, &PrintOptions::TraceHeader},
    {Mode::RealTrace, &PrintOptions::RealTraceHeader},
    {Mode::Mecha, &PrintOptions::MechaHeader},
    {Mode::Sim, &PrintOptions::SimHeader},
    {Mode::IdxTbl, &PrintOptions::IdxTblHeader},
    {Mode::ZoneTbl, &PrintOptions::ZoneTblHeader},
    {Mode::JogTbl, &PrintOptions::JogTblHeader},
}};

void SelectHeaderOptions(PrintRun& run, const HeaderOptions& record) {
  run.Session.ActiveHeader = record;
}

}  // namespace

void ShowPrintPreview(PrintRun& run, ProgramWindows& windows) {
  windows.SetHelpFile({});
  for (const ModeHeader& entry : ModeHeaders) {
    if (run.Session.Mode == entry.Mode) SelectHeaderOptions(run, run.Options.*entry.Header);
  }
  windows.ShowMasterReport();
}

rptTarvis::rptTarvis(ReportContext context, ReportFactory factory, ProgramWindows& windows)
    : ActiveReport("rptTarvis", MasterPrintWidth),
      context_(context),
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
  ModuleIndex = 0;
  ModuleCount = 1;
  Tools.push_back({"Editing of the Printing Items", 0});
  Tools.back().ID = EditItemsTool;
  if (Run.Options.Cover == 1) ModuleCount = 2;
  OverlapIndex = 0;
  session.FinishedReports = 0;
  session.TocGroup.clear();
  if (session.OverlapMode == 1 && DetailIsOn()) {
    ModuleCount = static_cast<std::int16_t>(ModuleCount + session.OverlapNum);
  }
  TOCVisible = true;
  TOCWidth = 2300;
}

// Whether the detail print of overlapped data is on for the function in `Mode`.
bool rptTarvis::DetailIsOn() const {
  if (Run.Session.Mode == Mode::Trace) return Run.Options.TraceOption.IsOn(TraceElement::OverlapDetail);
  return Run.Session.Mode == Mode::Sim && Run.Options.SimOption.IsOn(SimElement::OverlapDetail);
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
    LoadDataSet();
    sbrModule.object = std::make_shared<rptBaseHeader>(context_, factory_);
  } else {
    sbrModule.object.reset();
    return;
  }
  ++ModuleIndex;
}

// The data sets of a trace or simulation share one record: the next file waits until the report before it has
// reached its end. With an engine that runs sub-reports to their end the gate never closes; twice in a row
// would be for ever.
bool rptTarvis::PassGate() {
  if (Run.Session.Mode != Mode::Trace && Run.Session.Mode != Mode::Sim) return true;
  const bool open = ModuleIndex <= Run.Session.FinishedReports;
  if (!open && gateWasClosed_) {
    throw RunTimeFailure("the report before has not reached its end",
                         {.File = Name, .Line = 0, .Key = {}, .Text = {}});
  }
  gateWasClosed_ = !open;
  return open;
}

void rptTarvis::LoadDataSet() {
  if (Run.Session.Mode != Mode::Trace && Run.Session.Mode != Mode::Sim) {
    LoadFunctionDataSet(Run, {}, false);
    return;
  }
  const bool overlapResult = OverlapIndex == 0 && Run.Session.OverlapMode != 0;
  LoadFunctionDataSet(Run, OverlapIndex == 0 ? std::string() : std::to_string(OverlapIndex), overlapResult);
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
