// The item page of the jog speed table.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfJogTbl : public ItemPage {
  Q_OBJECT

 public:
  InfJogTbl(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  std::vector<BoundBox> items_;
};

}  // namespace tarvis
