// The arguments of a program on POSIX systems.
#include "platform/files/program_arguments.h"

namespace tarvis {

std::vector<std::string> ProgramArguments(int argc, char* const* argv) {
  return {argc > 0 ? argv + 1 : argv, argv + argc};
}

}  // namespace tarvis
