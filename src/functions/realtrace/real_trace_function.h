// The function of the host that prints a real-time trace.
#pragma once

#include "report/print_function.h"

namespace tarvis {

extern const PrintFunction RealTraceFunction;

}  // namespace tarvis
