// The master report: one row for the cover letter and one for each data set; page footer; the way out.
#pragma once

#include <cstdint>
#include <string>

#include "report/print_function.h"
#include "run/print_run.h"

namespace tarvis {

inline constexpr float MasterPrintWidth = 10000;  // twips

class rptTarvis : public ActiveReport {
 public:
  // `functions` and `windows` must outlive the report.
  rptTarvis(ReportContext context, FunctionTable functions, ReportFactory factory, ProgramWindows& windows);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;
  void ActiveReport_ReportEnd() override;

  // Window events. `closeMode` 0: the user closed the preview; any other does nothing.
  void ActiveReport_QueryClose(int closeMode);
  void ActiveReport_ToolbarClick(int toolId);

 private:
  void PageFooter_BeforePrint();
  void ShowPageNumbers(bool visible);
  bool PassGate();
  void LoadNextDataSet();
  // Whether the data sets of the function can be laid over each other.
  bool Overlaps() const;

  ReportContext context_;
  FunctionTable functions_;
  ReportFactory factory_;
  ProgramWindows& windows_;
  PrintRun& Run = context_.Run;
  const PrintFunction* function_ = nullptr;  // that prints; null if the mode has none
  std::int16_t ModuleIndex = 0;              // rows done so far
  std::int16_t ModuleCount = 0;              // rows wanted
  std::int16_t OverlapIndex = 0;             // next of the overlapped data sets
  bool gateWasClosed_ = false;

  Section& PageHeader = AddSection(SectionKind::PageHeader, "PageHeader", 0);
  Section& Detail = AddSection(SectionKind::Detail, "Detail", 795);
  SubReport& sbrModule = Detail.AddSubReport("sbrModule", {0, 0, MasterPrintWidth, 2693});
  Section& PageFooter = AddSection(SectionKind::PageFooter, "PageFooter", 480);
  Label& Label2 = PageFooter.AddLabel("Label2", {7370, 142, 567, 280}, "Page");
  Field& txtPageNumber =
      PageFooter.AddField("txtPageNumber", {7935, 135, 420, 285}, {.Alignment = Align::Right});
  Label& Label1 = PageFooter.AddLabel("Label1", {8355, 135, 135, 285}, "/");
  Field& txtPageCount = PageFooter.AddField("txtPageCount", {8505, 135, 420, 285});
};

// Makes the header options of the function in `Mode` those of the session. The first step of showing the
// master report.
void SelectHeaderOptions(PrintRun& run, FunctionTable functions);

}  // namespace tarvis
