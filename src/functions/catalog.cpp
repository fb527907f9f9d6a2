#include "functions/catalog.h"

#include <string_view>

#include "functions/mecha/rptMechaGraph.h"
#include "functions/mecha/rptMechaMeasure.h"
#include "functions/mecha/rptMechaNotch.h"
#include "functions/mecha/rptMechaResonance.h"
#include "functions/realtrace/rptRealTraceGraph.h"
#include "functions/realtrace/rptRealTraceInfo.h"
#include "functions/sim/rptSimGraph.h"
#include "functions/trace/rptTraceGraph.h"
#include "functions/trace/rptTraceObject.h"
#include "functions/trace/rptTraceObjectOverlap.h"
#include "functions/trace/rptTraceTrigger.h"
#include "functions/user/rptUserPrm.h"
#include "report/rptDataDate.h"
#include "report/rptUserComment.h"

namespace tarvis {
namespace {

struct CatalogEntry {
  std::string_view Name;
  std::shared_ptr<ActiveReport> (*Create)(ReportContext);
};

template <typename Report>
std::shared_ptr<ActiveReport> Make(ReportContext context) {
  return std::make_shared<Report>(context);
}

constexpr CatalogEntry Catalog[] = {
    {"rptUserPrm", Make<rptUserPrm>},
    {"rptUserComment", Make<rptUserComment>},
    {"rptDataDate", Make<rptDataDate>},
    {"rptTraceGraph", Make<rptTraceGraph>},
    {"rptTraceObject", Make<rptTraceObject>},
    // The module lists spell the name so.
    {"rptTraceObjrctOverlap", Make<rptTraceObjectOverlap>},
    {"rptTraceTrigger", Make<rptTraceTrigger>},
    {"rptRealTraceGraph", Make<rptRealTraceGraph>},
    {"rptRealTraceInfo", Make<rptRealTraceInfo>},
    {"rptMechaGraph", Make<rptMechaGraph>},
    {"rptMechaResonance", Make<rptMechaResonance>},
    {"rptMechaNotch", Make<rptMechaNotch>},
    {"rptMechaMeasure", Make<rptMechaMeasure>},
    {"rptSimGraph", Make<rptSimGraph>},
};

}  // namespace

std::shared_ptr<ActiveReport> CreateFunctionReport(const std::string& name, ReportContext context) {
  for (const CatalogEntry& entry : Catalog) {
    if (entry.Name == name) return entry.Create(context);
  }
  return nullptr;
}

}  // namespace tarvis
