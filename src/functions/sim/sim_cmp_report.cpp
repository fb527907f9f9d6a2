#include "functions/sim/sim_cmp_report.h"

#include "printfiles/key_place.h"

namespace tarvis {

SimCmpReport::SimCmpReport(const char* name, ReportContext context, const char* caption, Keep keep)
    : FunctionReport(name, 9000, context, caption, 690, Entry::Grouped, keep) {
  ghGuide.Repeat = true;
  ghGuide.BeforePrint = [this] { ghGuide_BeforePrint(); };
}

const CmpTimeRow& SimCmpReport::Simulation(int row) const {
  const int highest = Run.Sim.CmpTime.HighestIndex();
  if (row > highest) {
    throw RunTimeFailure("only " + std::to_string(highest + 1) + " simulations have room",
                         PlaceOf(Run, "OverlapNum"));
  }
  return Run.Sim.CmpTime[row];
}

void SimCmpReport::ghGuide_BeforePrint() {
  if (Run.Session.OverlapNum == 0) Unload();
}

}  // namespace tarvis
