// The heading lines that both reference settings begin with.
#pragma once

#include <string>

#include "report/function_report.h"

namespace tarvis {

class SimRefReport : public FunctionReport {
 public:
  void ActiveReport_ReportStart() override;

 protected:
  // The labels of the last two lines are named the other way round in one of the two definitions.
  SimRefReport(const char* name, float printWidth, ReportContext context, float titleHeight,
               const char* samplingLabel, const char* simTimeLabel);

  static constexpr CellStyle Plain{};
  // A heading has no frame: a long one runs on to the right.
  static constexpr CellStyle RunningOn{.RunsOn = true};

  Label& Label2 = ghTitle.AddLabel("Label2", {142, 850, 1417, 284}, "Reference Pattern", Plain);
  Label& txtValuePattern = ghTitle.AddLabel("txtValuePattern", {2268, 850, 2551, 284}, "", RunningOn);
  Label& samplingLabel_;
  Label& txtValueSampleTime = ghTitle.AddLabel("txtValueSampleTime", {2268, 1134, 2551, 283}, "", RunningOn);
  Label& simTimeLabel_;
  Label& txtValueSimTime = ghTitle.AddLabel("txtValueSimTime", {2268, 1417, 2551, 284}, "", RunningOn);
};

}  // namespace tarvis
