// The arguments of a program that its user types, or a script.
#pragma once

#include <string>
#include <vector>

namespace tarvis {

// Without the program's name, in UTF-8. Where the system gives `argv` in a code page, its own list is taken
// instead: a name may have characters that the code page has not.
std::vector<std::string> ProgramArguments(int argc, char* const* argv);

}  // namespace tarvis
