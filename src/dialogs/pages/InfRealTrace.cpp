#include "dialogs/pages/InfRealTrace.h"

#include "dialogs/pages/graph_items.h"
#include "run/print_run.h"

namespace tarvis {

InfRealTrace::InfRealTrace(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfRealTrace", PageId::InfRealTrace, "Real-Time Tracing", {PrintingItemsTab}}, parent) {
  QWidget* tab = Tabs().Page(1);
  AddLabels(tab, {{"Label4", "Graph Relations", {150, 390, 1155, 210}},
                  {"Label5", "Constant Number Relation of Users", {150, 1080, 2535, 210}},
                  {"Label1", "Others", {150, 2280, 495, 210}}});
  items_ =
      AddBoxes(tab,
               {{"chkItemGraph", 0, "Tracin&g Info", RealTraceElement::Info, {330, 600, 2340, 255}},
                {"chkItemUser", 0, "Pa&rameters", RealTraceElement::Parameters, {330, 1275, 1485, 255}},
                {"chkItemUser", 1, "Na&me", RealTraceElement::Name, {600, 1560, 1215, 255}},
                {"chkItemUser", 2, "S&witches Info", RealTraceElement::Switches, {600, 1800, 1485, 255}},
                {"chkItemUser", 3, "Un&it", RealTraceElement::Unit, {2760, 1560, 1215, 255}},
                {"chkItemUser", 4, "&Default Setting", RealTraceElement::Default, {2760, 1800, 1935, 255}},
                {"chkItemEtc", NoFamily, "Comment&s", RealTraceElement::Comments, {330, 2520, 1485, 255}}},
               run.Options.RealTraceOption);
  ConnectParameterBoxes(items_);
}

void InfRealTrace::LoadItems() {
  LoadBoxes(items_);
}

}  // namespace tarvis
