// The command line on Windows, which hands it over as one text.
#include <windows.h>

#include <QString>

#include "platform/command_line.h"

namespace tarvis {

std::string CommandLineText(int, char* const*) {
  return std::string(ArgumentsOf(QString::fromWCharArray(GetCommandLineW()).toStdString()));
}

}  // namespace tarvis
