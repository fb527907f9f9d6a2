// What the module lists of the functions have in common.
#pragma once

#include <string>

#include "report/print_function.h"
#include "run/print_run.h"

namespace tarvis {

inline void AddIf(ModuleList& modules, bool condition, const char* name) {
  if (condition) modules.emplace_back(name);
}

// Passes the options for the columns of the parameter list on to the session.
template <typename Element>
void PassColumnSwitches(PrintSession& session, const OptionElements<Element>& option) {
  session.ShowPrmName = option[Element::Name];
  session.ShowPrmSwitches = option[Element::Switches];
  session.ShowPrmUnit = option[Element::Unit];
  session.ShowPrmDefault = option[Element::Default];
}

}  // namespace tarvis
