#include "functions/trace/rptTraceObject.h"

#include "functions/trace/channels.h"

namespace tarvis {
namespace {

constexpr std::array<const char*, 6> TraceLabels{"Data trace1", "Data trace2", "Data trace3",
                                                 "I/O trace1",  "I/O trace2",  "I/O trace3"};
// The third is the name of the simulated reference.
constexpr std::array<const char*, 6> SimulationLabels{"Simulation1", "Simulation2", nullptr,
                                                      "IO Data1",    "IO Data2",    "IO Data3"};

}  // namespace

rptTraceObject::rptTraceObject(ReportContext context)
    : FunctionReport("rptTraceObject", 9000, context, "Trace Target Setting", 690, Entry::Grouped,
                     Keep::None) {
  ghTitle.Format = [this] { ghTitle_Format(); };
  txtValueTrace.Reads.As = PartRole::RowHeader;
}

// Required: the caption of the design never reaches the page.
void rptTraceObject::ActiveReport_ReportStart() {
  Row = 0;
  Label1.SetCaption(PrintsSimulation(Run) ? "Simulation Object Setting" : "Trace Object Setting");
}

void rptTraceObject::ghTitle_Format() {
  ghTitle.GroupKeepTogether = PrintsSimulation(Run) ? Keep::All : Keep::None;
}

void rptTraceObject::ActiveReport_FetchData(bool& endOfData) {
  const auto channels = Channels(Run);
  const auto index = static_cast<std::size_t>(Row);
  endOfData = index >= channels.size();
  if (endOfData) return;
  const TraceItem& channel = *channels[index];
  txtValueTrace.Text = RowLabel(index);
  txtValueName.Text = channel.Name;
  txtValueUnit.Text = channel.Unit;
  txtValueVal.Text.clear();
  if (!channel.Name.empty()) txtValueVal.Text = IsDisplayed(Run, index) ? "Display" : "non-display";
  ++Row;
}

std::string rptTraceObject::RowLabel(std::size_t channel) const {
  const char* const label = (PrintsSimulation(Run) ? SimulationLabels : TraceLabels)[channel];
  return label == nullptr ? Run.Sim.Ref.Name : label;
}

}  // namespace tarvis
