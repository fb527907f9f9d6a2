// The function of the host that prints its parameters.
#pragma once

#include "report/print_function.h"

namespace tarvis {

extern const PrintFunction UserFunction;

}  // namespace tarvis
