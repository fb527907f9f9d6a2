// The command line after the program's name, as one text.
#pragma once

#include <string>
#include <string_view>

namespace tarvis {

// Where the system hands over separate arguments they are joined with blanks, so that a quoted blank
// separates arguments there just as on systems that hand over the whole line. UTF-8.
std::string CommandLineText(int argc, char* const* argv);

// What follows the program's name in the whole line of a system that hands that over. A name in quotation
// marks ends at the second one, any other at the first blank or tab.
std::string_view ArgumentsOf(std::string_view line);

}  // namespace tarvis
