#include "report/print_function.h"

#include <algorithm>

namespace tarvis {

const PrintFunction* FindFunction(FunctionTable functions, Mode mode) {
  const auto found = std::ranges::find(functions, mode, &PrintFunction::Mode);
  return found == functions.end() ? nullptr : *found;
}

}  // namespace tarvis
