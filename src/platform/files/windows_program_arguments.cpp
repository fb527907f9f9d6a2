// The arguments of a program on Windows.
#include <windows.h>

#include <memory>

#include "platform/files/program_arguments.h"
#include "platform/files/windows_text.h"

namespace tarvis {

std::vector<std::string> ProgramArguments(int /*argc*/, char* const* /*argv*/) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> list(CommandLineToArgvW(GetCommandLineW(), &count),
                                                           LocalFree);
  std::vector<std::string> arguments;
  for (int index = 1; list != nullptr && index < count; ++index)
    arguments.push_back(Utf8OfWide(list.get()[index]));
  return arguments;
}

}  // namespace tarvis
