// The function of the host that prints a dynamics simulation, or simulations laid over each other.
#pragma once

#include "report/print_function.h"

namespace tarvis {

extern const PrintFunction SimFunction;

}  // namespace tarvis
