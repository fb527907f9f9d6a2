#include "dialogs/pages/item_pages.h"

#include "dialogs/pages/InfIdxTbl.h"
#include "dialogs/pages/InfJogTbl.h"
#include "dialogs/pages/InfMecha.h"
#include "dialogs/pages/InfRealTrace.h"
#include "dialogs/pages/InfSim.h"
#include "dialogs/pages/InfSimOverlap.h"
#include "dialogs/pages/InfTrace.h"
#include "dialogs/pages/InfUser.h"
#include "dialogs/pages/InfWizard.h"
#include "dialogs/pages/InfZoneTbl.h"

namespace tarvis {

ItemPage* MakeItemPage(PageId id, PrintRun& run, QWidget* parent) {
  switch (id) {
    case PageId::InfUser:
      return new InfUser(run, parent);
    case PageId::InfTrace:
      return new InfTrace(run, parent);
    case PageId::InfRealTrace:
      return new InfRealTrace(run, parent);
    case PageId::InfWizard:
      return new InfWizard(run, parent);
    case PageId::InfMecha:
      return new InfMecha(run, parent);
    case PageId::InfSim:
      return new InfSim(run, parent);
    case PageId::InfSimOverlap:
      return new InfSimOverlap(run, parent);
    case PageId::InfIdxTbl:
      return new InfIdxTbl(run, parent);
    case PageId::InfZoneTbl:
      return new InfZoneTbl(run, parent);
    case PageId::InfJogTbl:
      return new InfJogTbl(run, parent);
  }
  return nullptr;
}

}  // namespace tarvis
