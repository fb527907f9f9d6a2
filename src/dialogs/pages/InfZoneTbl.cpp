#include "dialogs/pages/InfZoneTbl.h"

#include "run/print_run.h"

namespace tarvis {

InfZoneTbl::InfZoneTbl(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfZoneTbl", PageId::InfZoneTbl, "Zone Table", {PrintingItemsTab}}, parent),
      items_(AddComments(run.Options.ZoneTblOption)) {}

void InfZoneTbl::LoadItems() {
  LoadBoxes(items_);
}

}  // namespace tarvis
