#include "functions/catalog.h"

#include <array>
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

constexpr std::array Catalog = {
    CatalogEntry{"rptCover", Make<rptCover>},
    CatalogEntry{"rptUserPrm", Make<rptUserPrm>},
    CatalogEntry{"rptUserSwitch", Make<rptUserSwitch>},
    CatalogEntry{"rptUPWizard", Make<rptUPWizard>},
    CatalogEntry{"rptUserComment", Make<rptUserComment>},
    CatalogEntry{"rptDataDate", Make<rptDataDate>},
    CatalogEntry{"rptTraceGraph", Make<rptTraceGraph>},
    CatalogEntry{"rptTraceObject", Make<rptTraceObject>},
    // The module lists spell the name so.
    CatalogEntry{"rptTraceObjrctOverlap", Make<rptTraceObjectOverlap>},
    CatalogEntry{"rptTraceTrigger", Make<rptTraceTrigger>},
    CatalogEntry{"rptRealTraceGraph", Make<rptRealTraceGraph>},
    CatalogEntry{"rptRealTraceInfo", Make<rptRealTraceInfo>},
    CatalogEntry{"rptMechaGraph", Make<rptMechaGraph>},
    CatalogEntry{"rptMechaResonance", Make<rptMechaResonance>},
    CatalogEntry{"rptMechaNotch", Make<rptMechaNotch>},
    CatalogEntry{"rptMechaMeasure", Make<rptMechaMeasure>},
    CatalogEntry{"rptSimGraph", Make<rptSimGraph>},
    CatalogEntry{"rptSimCmpFileList", Make<rptSimCmpFileList>},
    CatalogEntry{"rptSimCmpTime", Make<rptSimCmpTime>},
    CatalogEntry{"rptSimCmpUser", Make<rptSimCmpUser>},
    CatalogEntry{"rptSimCmpUserEx", Make<rptSimCmpUserEx>},
    CatalogEntry{"rptSimInfo", Make<rptSimInfo>},
    CatalogEntry{"rptSimRef1", Make<rptSimRef1>},
    CatalogEntry{"rptSimRef2", Make<rptSimRef2>},
    CatalogEntry{"rptSimSettingMecha", Make<rptSimSettingMecha>},
    CatalogEntry{"rptSimSettingSvMt", Make<rptSimSettingSvMt>},
    CatalogEntry{"rptIdxIdxTblExTable", Make<rptIdxIdxTblExTable>},
    CatalogEntry{"rptIdxIdxTblTable", Make<rptIdxIdxTblTable>},
    CatalogEntry{"rptIdxJogTblTable", Make<rptIdxJogTblTable>},
    CatalogEntry{"rptIdxZoneTblTable", Make<rptIdxZoneTblTable>},
};

}  // namespace

std::shared_ptr<ActiveReport> CreateFunctionReport(const std::string& name, ReportContext context) {
  for (const CatalogEntry& entry : Catalog) {
    if (entry.Name == name) return entry.Create(context);
  }
  return nullptr;
}

}  // namespace tarvis
