#include "dialogs/pages/InfSim.h"

#include "dialogs/pages/graph_items.h"
#include "run/print_run.h"

namespace tarvis {

InfSim::InfSim(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfSim", PageId::InfSim, "Dynamics Simulation", {PrintingItemsTab}}, parent) {
  QWidget* tab = Tabs().Page(1);
  AddLabels(tab, {{"Label4", "Graph Relations", {150, 390, 1155, 210}},
                  {"Label5", "Constant Number Relation of Users", {150, 1320, 2535, 210}},
                  {"Label1", "Others", {150, 2400, 495, 210}}});
  // The elements of the second and the third box are crossed.
  items_ = AddBoxes(
      tab,
      {{"chkItemGraph", 0, "Re&ference Setting", SimElement::Reference, {330, 600, 1695, 375}},
       {"chkItemGraph", 1, "Mechanical Settin&g", SimElement::Mechanics, {330, 960, 1965, 375}},
       {"chkItemGraph", 2, "Ser&vo Drive Setting", SimElement::ServoAndMotor, {2760, 600, 1800, 255}},
       {"chkItemGraph", 3, "Ac&quisition Date of the Data", SimElement::Date, {2760, 960, 1845, 375}},
       {"chkItemUser", 0, "Pa&rameters", SimElement::Parameters, {330, 1515, 1485, 255}},
       {"chkItemUser", 1, "Na&me", SimElement::Name, {600, 1800, 1215, 255}},
       {"chkItemUser", 2, "S&witches Info", SimElement::Switches, {600, 2040, 1485, 255}},
       {"chkItemUser", 3, "Un&it", SimElement::Unit, {2760, 1800, 1215, 255}},
       {"chkItemUser", 4, "&Default Setting", SimElement::Default, {2760, 2040, 1695, 255}},
       {"chkItemEtc", NoFamily, "Comment&s", SimElement::Comments, {330, 2640, 1485, 255}}},
      run.Options.SimOption);
  ConnectParameterBoxes(items_);
}

void InfSim::LoadItems() {
  LoadBoxes(items_);
}

}  // namespace tarvis
