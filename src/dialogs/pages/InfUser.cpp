#include "dialogs/pages/InfUser.h"

#include "run/print_run.h"

namespace tarvis {

InfUser::InfUser(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfUser", PageId::InfUser, "Parameters", {PrintingItemsTab}}, parent) {
  QWidget* tab = Tabs().Page(1);
  AddLabels(tab, {{"Label4", "Constant Number Relation of Users", {150, 390, 2535, 210}},
                  {"Label1", "Others", {150, 1800, 495, 210}}});
  items_ = AddBoxes(tab,
                    {{"chkItemUser", 0, "Na&me", UserElement::Name, {360, 600, 1215, 255}},
                     {"chkItemUser", 1, "S&witches Info", UserElement::Switches, {360, 840, 1485, 255}},
                     {"chkItemUser", 2, "Un&it", UserElement::Unit, {2400, 600, 1485, 255}},
                     {"chkItemUser", 3, "&Default Setting", UserElement::Default, {2400, 840, 1695, 255}},
                     {"chkItemEtc", NoFamily, "Comment&s", UserElement::Comments, {330, 2040, 1485, 255}}},
                    run.Options.UserOption);
  TickBox* name = &BoxNamed(items_, "chkItemUser", 0);
  TickBox* switches = &BoxNamed(items_, "chkItemUser", 1);
  connect(name, &TickBox::ValueChanged, switches, [name, switches] { switches->setEnabled(name->IsOn()); });
}

void InfUser::LoadItems() {
  LoadBoxes(items_);
}

}  // namespace tarvis
