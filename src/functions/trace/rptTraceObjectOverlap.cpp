#include "functions/trace/rptTraceObjectOverlap.h"

#include "functions/trace/channels.h"

namespace tarvis {

rptTraceObjectOverlap::rptTraceObjectOverlap(ReportContext context)
    : FunctionReport("rptTraceObjectOverlap", 9015, context, "Overlapping Target", 690, Entry::Grouped,
                     Keep::None) {
  CheckValue.Reads.Within = &txtValueTrace;
}

void rptTraceObjectOverlap::ActiveReport_FetchData(bool& endOfData) {
  const auto channels = Channels(Run);
  const auto index = static_cast<std::size_t>(Row);
  endOfData = index >= channels.size();
  if (endOfData) return;
  const TraceItem& channel = *channels[index];
  txtValueName.Text = channel.Name;
  txtValueUnit.Text = channel.Unit;
  CheckValue.Value = !channel.Name.empty() && IsDisplayed(Run, index);
  ++Row;
}

}  // namespace tarvis
