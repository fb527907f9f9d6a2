#include "functions/catalog.h"

#include <string_view>

#include "functions/mecha/rptMechaGraph.h"
#include "functions/mecha/rptMechaMeasure.h"
#include "functions/mecha/rptMechaNotch.h"
#include "functions/mecha/rptMechaResonance.h"
#include "functions/realtrace/rptRealTraceGraph.h"
#include "functions/realtrace/rptRealTraceInfo.h"
#include "functions/sim/rptSimCmpFileList.h"
#include "functions/sim/rptSimCmpTime.h"
#include "functions/sim/rptSimCmpUser.h"
#include "functions/sim/rptSimCmpUserEx.h"
#include "functions/sim/rptSimGraph.h"
#include "functions/sim/rptSimInfo.h"
#include "functions/sim/rptSimRef1.h"
#include "functions/sim/rptSimRef2.h"
#include "functions/sim/rptSimSettingMecha.h"
#include "functions/sim/rptSimSettingSvMt.h"
#include "functions/tables/rptIdxIdxTblExTable.h"
#include "functions/tables/rptIdxIdxTblTable.h"
#include "functions/tables/rptIdxJogTblTable.h"
#include "functions/tables/rptIdxZoneTblTable.h"
#include "functions/trace/rptTraceGraph.h"
#include "functions/trace/rptTraceObject.h"
#include "functions/trace/rptTraceObjectOverlap.h"
#include "functions/trace/rptTraceTrigger.h"
#include "functions/user/rptUserPrm.h"
#include "functions/user/rptUserSwitch.h"
#include "functions/wizard/rptUPWizard.h"
#include "report/rptCover.h"
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
    {"rptCover", Make<rptCover>},
    {"rptUserPrm", Make<rptUserPrm>},
    {"rptUserSwitch", Make<rptUserSwitch>},
    {"rptUPWizard", Make<rptUPWizard>},
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
    {"rptSimCmpFileList", Make<rptSimCmpFileList>},
    {"rptSimCmpTime", Make<rptSimCmpTime>},
    {"rptSimCmpUser", Make<rptSimCmpUser>},
    {"rptSimCmpUserEx", Make<rptSimCmpUserEx>},
    {"rptSimInfo", Make<rptSimInfo>},
    {"rptSimRef1", Make<rptSimRef1>},
    {"rptSimRef2", Make<rptSimRef2>},
    {"rptSimSettingMecha", Make<rptSimSettingMecha>},
    {"rptSimSettingSvMt", Make<rptSimSettingSvMt>},
    {"rptIdxIdxTblExTable", Make<rptIdxIdxTblExTable>},
    {"rptIdxIdxTblTable", Make<rptIdxIdxTblTable>},
    {"rptIdxJogTblTable", Make<rptIdxJogTblTable>},
    {"rptIdxZoneTblTable", Make<rptIdxZoneTblTable>},
};

}  // namespace

std::shared_ptr<ActiveReport> CreateFunctionReport(const std::string& name, ReportContext context) {
  for (const CatalogEntry& entry : Catalog) {
    if (entry.Name == name) return entry.Create(context);
  }
  return nullptr;
}

}  // namespace tarvis
