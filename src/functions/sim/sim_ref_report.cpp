#include "functions/sim/sim_ref_report.h"

namespace tarvis {

SimRefReport::SimRefReport(const char* name, float printWidth, ReportContext context, float titleHeight,
                           const char* samplingLabel, const char* simTimeLabel)
    : FunctionReport(name, printWidth, context, "Reference Setting", titleHeight, Entry::Grouped, Keep::All),
      samplingLabel_(
          ghTitle.AddLabel(samplingLabel, {142, 1134, 2126, 283}, "Reference Sampling Time", Plain)),
      simTimeLabel_(ghTitle.AddLabel(simTimeLabel, {142, 1417, 1417, 284}, "Simulation Time", Plain)) {}

void SimRefReport::ActiveReport_ReportStart() {
  FunctionReport::ActiveReport_ReportStart();
  const SimData& sim = Run.Sim;
  txtValuePattern.SetCaption(": " + sim.PatternSetting.PatternName);
  txtValueSampleTime.SetCaption(": " + sim.SamplingCycle.Value + " [" + sim.SamplingCycle.Unit + "]");
}

}  // namespace tarvis
