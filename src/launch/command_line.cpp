#include "launch/command_line.h"

namespace tarvis {

CheckedArray<std::string> SplitCommandLine(std::string_view line, int maxArgs) {
  CheckedArray<std::string> arguments("Arguments");
  arguments.Resize(maxArgs);
  int count = 0;
  bool inArgument = false;
  for (const char c : line) {
    if (c == ' ' || c == '\t') {
      inArgument = false;
      continue;
    }
    if (!inArgument && count == maxArgs) break;
    if (!inArgument) ++count;
    inArgument = true;
    arguments[count] += c;
  }
  arguments.ResizeKeeping(count);
  return arguments;
}

}  // namespace tarvis
