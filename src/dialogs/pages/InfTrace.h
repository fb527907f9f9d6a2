// The item page of tracing.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfTrace : public ItemPage {
  Q_OBJECT

 public:
  InfTrace(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  TickBox& OverlapBox() const;
  void OverlapClicked();

  std::vector<BoundBox> overlap_;
  std::vector<BoundBox> details_;
};

}  // namespace tarvis
