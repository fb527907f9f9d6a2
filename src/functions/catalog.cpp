#include "functions/catalog.h"

#include <string_view>

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
};

}  // namespace

std::shared_ptr<ActiveReport> CreateFunctionReport(const std::string& name, ReportContext context) {
  for (const CatalogEntry& entry : Catalog) {
    if (entry.Name == name) return entry.Create(context);
  }
  return nullptr;
}

}  // namespace tarvis
