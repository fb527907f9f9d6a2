// The command line after the program's name, as one text.
#pragma once

#include <string>

namespace tarvis {

// Where the system hands over separate arguments they are joined with blanks, so that a quoted blank
// separates arguments there as it does where the line comes whole. UTF-8.
std::string CommandLineText(int argc, char* const* argv);

}  // namespace tarvis
