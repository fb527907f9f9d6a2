// The function of the host that prints the parameter wizard.
#pragma once

#include "report/print_function.h"

namespace tarvis {

extern const PrintFunction WizardFunction;

}  // namespace tarvis
