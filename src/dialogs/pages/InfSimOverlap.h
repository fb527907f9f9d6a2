// The item page of dynamics simulation where simulations can be compared; edits the same options as InfSim.
#pragma once

#include "dialogs/pages/item_page.h"

namespace tarvis {

class InfSimOverlap : public ItemPage {
  Q_OBJECT

 public:
  InfSimOverlap(PrintRun& run, QWidget* parent);

 protected:
  void LoadItems() override;

 private:
  void BuildOverlapTab();
  TickBox& DetailsBox() const;
  void DetailClicked();

  std::vector<BoundBox> overlap_;
  std::vector<BoundBox> details_;
};

}  // namespace tarvis
