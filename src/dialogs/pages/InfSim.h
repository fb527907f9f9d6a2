// The item page of dynamics simulation, one simulation at a time.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfSim : public ItemPage {
  Q_OBJECT

 public:
  InfSim(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  std::vector<BoundBox> items_;
};

}  // namespace tarvis
