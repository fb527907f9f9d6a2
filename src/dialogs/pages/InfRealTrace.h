// The item page of real-time tracing.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfRealTrace : public ItemPage {
  Q_OBJECT

 public:
  InfRealTrace(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  std::vector<BoundBox> items_;
};

}  // namespace tarvis
