#include "dialogs/pages/InfJogTbl.h"

#include "run/print_run.h"

namespace tarvis {

InfJogTbl::InfJogTbl(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfJogTbl", PageId::InfJogTbl, "Jog Speed Table", {PrintingItemsTab}}, parent),
      items_(AddComments(run.Options.JogTblOption)) {}

void InfJogTbl::LoadItems() {
  LoadBoxes(items_);
}

}  // namespace tarvis
