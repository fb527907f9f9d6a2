// The frame of one data set: title, models info, date and file name, then its function reports one by one.
#pragma once

#include <cstdint>

#include "report/cell_styles.h"
#include "report/report_context.h"
#include "run/print_run.h"

namespace tarvis {

// Created for each data set. The catalog of function reports is passed to it.
class rptBaseHeader : public ActiveReport {
 public:
  rptBaseHeader(ReportContext context, ReportFactory factory);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;
  void ActiveReport_ReportEnd() override;

 private:
  ReportContext context_;
  ReportFactory factory_;
  PrintRun& Run = context_.Run;
  std::int16_t ModuleIndex = 0;

  static constexpr CellStyle TitleStyle{.Size = 12, .Bold = true};

  Section& ghHeader = AddSection(SectionKind::GroupHeader, "ghHeader", 855);
  Field& txtTitle = ghHeader.AddField("txtTitle", {0, 142, 5953, 283}, TitleStyle);
  Field& txtPrnDate = ghHeader.AddField("txtPrnDate", {5953, 283, 2976, 142}, RightAlignedText);
  Line& Line1 = ghHeader.AddLine("Line1", 0, 425, 9000, 425, 3);
  Field& txtMechaInfo = ghHeader.AddField("txtMechaInfo", {0, 500, 3685, 142});
  Field& txtFileName = ghHeader.AddField("txtFileName", {5244, 500, 3685, 142}, RightAlignedText);
  Section& Detail = AddSection(SectionKind::Detail, "Detail", 645);
  SubReport& sbrRegion = Detail.AddSubReport("sbrRegion", {0, 0, 14400, 567});
  Section& GroupFooter1 = AddSection(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
