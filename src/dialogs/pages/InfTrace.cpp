#include "dialogs/pages/InfTrace.h"

#include "dialogs/pages/graph_items.h"
#include "run/print_run.h"

namespace tarvis {

InfTrace::InfTrace(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfTrace", PageId::InfTrace, "Tracing", {PrintingItemsTab}}, parent) {
  QWidget* tab = Tabs().Page(1);
  AddLabels(tab, {{"Label6", "Overlapping", {120, 360, 870, 210}},
                  {"Label4", "Graph Relations", {150, 870, 1155, 210}},
                  {"Label5", "Constant Number Relation of Users", {150, 1560, 2535, 210}},
                  {"Label1", "Others", {150, 2520, 495, 210}}});
  overlap_ = AddBoxes(tab,
                      {{"chkItemOverlap",
                        NoFamily,
                        "Detail of o&verlapping data",
                        TraceElement::OverlapDetail,
                        {360, 600, 2205, 255}}},
                      run.Options.TraceOption);
  details_ = AddBoxes(
      tab,
      {{"chkItemGraph", 0, "&Trigger Setting", TraceElement::Trigger, {360, 1080, 2385, 255}},
       {"chkItemGraph", 1, "Ac&quisition Date of the Data", TraceElement::Date, {360, 1320, 2355, 255}},
       {"chkItemUser", 0, "Pa&rameters", TraceElement::Parameters, {360, 1755, 1485, 255}},
       {"chkItemUser", 1, "Na&me", TraceElement::Name, {600, 2040, 1215, 255}},
       {"chkItemUser", 2, "S&witches Info", TraceElement::Switches, {600, 2280, 1485, 255}},
       {"chkItemUser", 3, "Un&it", TraceElement::Unit, {2760, 2040, 1215, 255}},
       {"chkItemUser", 4, "&Default Setting", TraceElement::Default, {2760, 2280, 1455, 255}},
       {"chkItemEtc", NoFamily, "Comment&s", TraceElement::Comments, {360, 2700, 1485, 255}}},
      run.Options.TraceOption);
  ConnectParameterBoxes(details_);
  connect(&OverlapBox(), &TickBox::ValueChanged, this, &InfTrace::OverlapClicked);
}

TickBox& InfTrace::OverlapBox() const {
  return BoxNamed(overlap_, "chkItemOverlap");
}

// Only a print of overlapped data can leave the details out.
void InfTrace::OverlapClicked() {
  const PrintSession& session = Run().Session;
  if (session.Mode == Mode::Trace && session.OverlapMode == 1) EnableDetails(details_, OverlapBox().IsOn());
}

void InfTrace::LoadItems() {
  LoadBoxes(overlap_);
  if (Run().Session.Mode == Mode::Trace && Run().Session.OverlapMode == 0) OverlapBox().setEnabled(false);
  LoadBoxes(details_);
}

}  // namespace tarvis
