#include "dialogs/item_pages.h"

#include "dialogs/InfJogTbl.h"
#include "dialogs/InfUser.h"
#include "dialogs/InfWizard.h"
#include "dialogs/InfZoneTbl.h"
#include "launch/print_run.h"

namespace tarvis {

namespace {

// A page whose printing items can't be chosen yet.
class HeaderPage : public ItemPage {
 public:
  HeaderPage(PrintRun& run, const PageFrame& frame, QWidget* parent) : ItemPage(run, frame, parent) {}

 protected:
  void LoadItems() override {}
};

}  // namespace

ItemPage* MakeItemPage(PageId id, PrintRun& run, QWidget* parent) {
  switch (id) {
    case PageId::InfUser:
      return new InfUser(run, parent);
    case PageId::InfTrace:
      return new HeaderPage(run, {"InfTrace", &PrintOptions::TraceHeader, "Tracing", {}}, parent);
    case PageId::InfRealTrace:
      return new HeaderPage(run, {"InfRealTrace", &PrintOptions::RealTraceHeader, "Real-Time Tracing", {}},
                            parent);
    case PageId::InfWizard:
      return new InfWizard(run, parent);
    case PageId::InfMecha:
      return new HeaderPage(run, {"InfMecha", &PrintOptions::MechaHeader, "Mechanical Analysis", {}}, parent);
    case PageId::InfSim:
      return new HeaderPage(run, {"InfSim", &PrintOptions::SimHeader, "Dynamics Simulation", {}}, parent);
    case PageId::InfSimOverlap:
      return new HeaderPage(run, {"InfSimOverlap", &PrintOptions::SimHeader, "Dynamics Simulation", {}},
                            parent);
    case PageId::InfIdxTbl:
      return new HeaderPage(run, {"InfIdxTbl", &PrintOptions::IdxTblHeader, "Program Table", {}}, parent);
    case PageId::InfZoneTbl:
      return new InfZoneTbl(run, parent);
    case PageId::InfJogTbl:
      return new InfJogTbl(run, parent);
  }
  return nullptr;
}

}  // namespace tarvis
