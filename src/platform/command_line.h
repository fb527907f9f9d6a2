// The command line after the program's name, as one text.
#pragma once

#include <string>

namespace tarvis {

// Where the system hands over separate arguments they are joined with blanks, so that a quoted blank
// separates arguments there just as on systems that hand over the whole line. UTF-8.
std::string CommandLineText(int argc, char* const* argv);

}  // namespace tarvis
