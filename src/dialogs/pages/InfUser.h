// The item page of the parameters.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfUser : public ItemPage {
  Q_OBJECT

 public:
  InfUser(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  std::vector<BoundBox> items_;
};

}  // namespace tarvis
