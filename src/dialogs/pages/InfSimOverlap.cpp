#include "dialogs/pages/InfSimOverlap.h"

#include "dialogs/pages/graph_items.h"
#include "run/print_run.h"

namespace tarvis {

InfSimOverlap::InfSimOverlap(PrintRun& run, QWidget* parent)
    : ItemPage(run,
               {"InfSimOverlap", PageId::InfSimOverlap, "Dynamics Simulation", {"Overla&pping", "Detai&ls"}},
               parent) {
  BuildOverlapTab();
  QWidget* tab = Tabs().Page(2);
  AddLabels(tab, {{"Label8", "Graph Relations", {120, 360, 1155, 210}},
                  {"Label6", "Constant Number Relation of Users", {120, 1290, 2535, 210}},
                  {"Label7", "Others", {120, 2370, 495, 210}}});
  // The elements of the second and the third box are crossed.
  details_ = AddBoxes(
      tab,
      {{"chkItemGraph", 0, "Re&ference Setting", SimElement::Reference, {300, 570, 1695, 375}},
       {"chkItemGraph", 1, "Mechanical Settin&g", SimElement::Mechanics, {300, 930, 1965, 375}},
       {"chkItemGraph", 2, "Ser&vo Drive Setting", SimElement::ServoAndMotor, {2730, 570, 1800, 375}},
       {"chkItemGraph", 3, "Ac&quisition Date of the Data", SimElement::Date, {2730, 960, 1845, 375}},
       {"chkItemUser", 0, "Pa&rameters", SimElement::Parameters, {300, 1485, 1485, 255}},
       {"chkItemUser", 1, "Na&me", SimElement::Name, {570, 1770, 1215, 255}},
       {"chkItemUser", 2, "S&witches Info", SimElement::Switches, {570, 2010, 1485, 255}},
       {"chkItemUser", 3, "Un&it", SimElement::Unit, {2730, 1770, 1215, 255}},
       {"chkItemUser", 4, "&Default Setting", SimElement::Default, {2730, 2010, 1695, 255}},
       {"chkItemEtc", NoFamily, "Comment&s", SimElement::Comments, {300, 2610, 1485, 255}}},
      run.Options.SimOption);
  ConnectParameterBoxes(details_);
  connect(&DetailsBox(), &TickBox::ValueChanged, this, &InfSimOverlap::DetailClicked);
}

void InfSimOverlap::BuildOverlapTab() {
  QWidget* tab = Tabs().Page(1);
  AddLabels(tab, {{"Label4", "Overlapping", {150, 480, 870, 210}}});
  overlap_ =
      AddBoxes(tab,
               {{"chkItemOverlap", 0, "Setting &Time", SimElement::TimeComparison, {360, 720, 1695, 375}},
                {"chkItemOverlap", 1, "Paramete&r", SimElement::ParameterComparison, {2520, 720, 1725, 375}},
                {"chkItemOverlap",
                 2,
                 "Detail of o&verlapping data",
                 SimElement::OverlapDetail,
                 {360, 1200, 3045, 255}}},
               Run().Options.SimOption);
  // A legend of two lines, read across.
  MakeLabel("Label5", NoFamily, "Box checked  Box unchecked", {840, 1440, 1215, 495}, tab,
            LabelLines::Wrapped);
  MakeLabel("Label1", NoFamily, ":Details tab page enabled. :Details tab page disabled.",
            {2115, 1440, 2415, 495}, tab, LabelLines::Wrapped);
}

TickBox& InfSimOverlap::DetailsBox() const {
  return BoxNamed(overlap_, "chkItemOverlap", 2);
}

// Only a print of overlapped data can leave the details out; their tab can always be opened.
void InfSimOverlap::DetailClicked() {
  const PrintSession& session = Run().Session;
  if (session.Mode == Mode::Sim && session.OverlapMode == 1) EnableDetails(details_, DetailsBox().IsOn());
}

void InfSimOverlap::LoadItems() {
  LoadBoxes(overlap_);
  if (Run().Session.Mode == Mode::Sim && Run().Session.OverlapMode == 0) {
    for (const BoundBox& bound : overlap_) bound.Box->setEnabled(false);
  }
  LoadBoxes(details_);
}

}  // namespace tarvis
