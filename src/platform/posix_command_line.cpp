// The command line where the system hands over separate arguments.
#include "platform/command_line.h"

namespace tarvis {

std::string CommandLineText(int argc, char* const* argv) {
  std::string line;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) line += ' ';
    line += argv[i];
  }
  return line;
}

}  // namespace tarvis
