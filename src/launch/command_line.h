// The four arguments with which the host starts the program.
#pragma once

#include <string>
#include <string_view>

#include "text/checked_array.h"

namespace tarvis {

// The arguments in `line`, which is the command line after the program's name. Element 0 is empty; elements
// 1 to n hold the arguments, at most `maxArgs` of them. Blanks and tabs separate; quotation marks mean
// nothing.
CheckedArray<std::string> SplitCommandLine(std::string_view line, int maxArgs);

}  // namespace tarvis
