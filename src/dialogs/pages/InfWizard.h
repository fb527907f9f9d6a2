// The item page of the parameter wizard, which no function list shows.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfWizard : public ItemPage {
  Q_OBJECT

 public:
  InfWizard(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;
};

}  // namespace tarvis
