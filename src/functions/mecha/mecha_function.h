// The function of the host that prints a mechanical analysis.
#pragma once

#include "report/print_function.h"

namespace tarvis {

extern const PrintFunction MechaFunction;

}  // namespace tarvis
