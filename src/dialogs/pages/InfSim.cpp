#include "dialogs/pages/InfSim.h"

#include "dialogs/pages/graph_items.h"
#include "run/print_run.h"

namespace tarvis {

InfSim::InfSim(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfSim", &PrintOptions::SimHeader, "Dynamics Simulation", {PrintingItemsTab}}, parent) {
  QWidget* tab = Tabs().Page(1);
  AddLabels(tab, {{"Label4", "Graph Relations", {150, 390, 1155, 210}},
                  {"Label5", "Constant Number Relation of Users", {150, 1320, 2535, 210}},
                  {"Label1", "Others", {150, 2400, 495, 210}}});
  // The elements of the second and the third box are crossed.
  items_ = AddBoxes(tab,
                    {{"chkItemGraph", 0, "Re&ference Setting", 1, {330, 600, 1695, 375}},
                     {"chkItemGraph", 1, "Mechanical Settin&g", 3, {330, 960, 1965, 375}},
                     {"chkItemGraph", 2, "Ser&vo Drive Setting", 2, {2760, 600, 1800, 255}},
                     {"chkItemGraph", 3, "Ac&quisition Date of the Data", 4, {2760, 960, 1845, 375}},
                     {"chkItemUser", 0, "Pa&rameters", 5, {330, 1515, 1485, 255}},
                     {"chkItemUser", 1, "Na&me", 6, {600, 1800, 1215, 255}},
                     {"chkItemUser", 2, "S&witches Info", 7, {600, 2040, 1485, 255}},
                     {"chkItemUser", 3, "Un&it", 8, {2760, 1800, 1215, 255}},
                     {"chkItemUser", 4, "&Default Setting", 9, {2760, 2040, 1695, 255}},
                     {"chkItemEtc", NoFamily, "Comment&s", 10, {330, 2640, 1485, 255}}},
                    run.Options.SimOption);
  ConnectParameterBoxes(items_);
}

void InfSim::LoadItems() {
  LoadBoxes(items_);
}

}  // namespace tarvis
