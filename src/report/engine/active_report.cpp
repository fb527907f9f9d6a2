#include "report/engine/active_report.h"

namespace tarvis {

void ActiveReport::ActiveReport_FetchData(bool& endOfData) {
  endOfData = oneRowGiven_;
  oneRowGiven_ = true;
}

Section& ActiveReport::AddSection(SectionKind kind, const char* name, float height) {
  sections_.push_back(std::make_unique<Section>(kind, name, height));
  return *sections_.back();
}

}  // namespace tarvis
