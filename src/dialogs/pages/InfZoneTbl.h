// The item page of the zone table.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfZoneTbl : public ItemPage {
  Q_OBJECT

 public:
  InfZoneTbl(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  std::vector<BoundBox> items_;
};

}  // namespace tarvis
