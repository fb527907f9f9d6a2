// The item page of mechanical analysis.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfMecha : public ItemPage {
  Q_OBJECT

 public:
  InfMecha(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  std::vector<BoundBox> items_;
};

}  // namespace tarvis
