#include "dialogs/pages/InfMecha.h"

#include "run/print_run.h"

namespace tarvis {

InfMecha::InfMecha(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfMecha", PageId::InfMecha, "Mechanical Analysis", {PrintingItemsTab}}, parent) {
  QWidget* tab = Tabs().Page(1);
  AddLabels(tab, {{"Label4", "Graph Relations", {150, 390, 1155, 210}},
                  {"Label1", "Others", {150, 1800, 495, 210}}});
  items_ = AddBoxes(
      tab,
      {{"chkItemGraph", 0, "&Resonance/Anti-Resonance", MechaElement::Resonance, {330, 600, 3120, 255}},
       {"chkItemGraph", 1, "Notch &Filters Info", MechaElement::Notch, {330, 840, 2160, 255}},
       {"chkItemGraph", 2, "&Measurement Conditions", MechaElement::Measurement, {330, 1080, 2160, 255}},
       {"chkItemGraph", 3, "Ac&quisition Date of the Data", MechaElement::Date, {330, 1320, 3120, 255}},
       {"chkItemEtc", NoFamily, "Comment&s", MechaElement::Comments, {330, 1980, 1485, 255}}},
      run.Options.MechaOption);
}

void InfMecha::LoadItems() {
  LoadBoxes(items_);
}

}  // namespace tarvis
