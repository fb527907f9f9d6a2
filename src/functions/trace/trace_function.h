// The function of the host that prints a trace, or traces laid over each other.
#pragma once

#include "report/print_function.h"

namespace tarvis {

extern const PrintFunction TraceFunction;

}  // namespace tarvis
