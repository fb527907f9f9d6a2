#include "functions/sim/rptSimRef2.h"

#include "printfiles/key_place.h"

namespace tarvis {

rptSimRef2::rptSimRef2(ReportContext context)
    : SimRefReport("rptSimRef2", 9510, context, 1710, "Label4", "Label3") {
  ghGuide.Repeat = true;
}

void rptSimRef2::ActiveReport_ReportStart() {
  SimRefReport::ActiveReport_ReportStart();
  const SimData& sim = Run.Sim;
  const auto title = [](const PointList& list) { return list.Name + " " + list.Unit; };
  // The unit comes from the point list and has no brackets of its own.
  txtValueSimTime.SetCaption(": " + sim.SimTime.Value + " " + sim.StartPointTime.Unit);
  txtTitleStartTime.Text = title(sim.StartPointTime);
  txtTitleEndTime.Text = title(sim.EndTime);
  txtTitleArrivalSpeed.Text = title(sim.ArrivalSpeed);
}

// A count above what a list holds stops the reader only if there is a list in the file.
void rptSimRef2::RequireRoom() const {
  const int highest = Run.Sim.StartPointTime.Values.HighestIndex();
  if (Row <= highest) return;
  constexpr int CountElement = 4;
  throw RunTimeFailure(
      "only " + std::to_string(highest + 1) + " values have room",
      PlaceOf(Run, "PatternSetting", CountElement, std::to_string(Run.Sim.PatternSetting.PatternCount)));
}

void rptSimRef2::ActiveReport_FetchData(bool& endOfData) {
  const SimData& sim = Run.Sim;
  endOfData = Row >= sim.PatternSetting.PatternCount;
  if (endOfData) return;
  RequireRoom();
  txtValNo.Text = std::to_string(Row + 1);
  txtValStartTime.Text = sim.StartPointTime.Values[Row];
  txtValEndTime.Text = sim.EndTime.Values[Row];
  txtValArrivalSpeed.Text = sim.ArrivalSpeed.Values[Row];
  ++Row;
}

}  // namespace tarvis
