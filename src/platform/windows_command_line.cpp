// The command line on Windows, which hands it over as one text.
#include <windows.h>

#include <QString>

#include "platform/command_line.h"

namespace tarvis {

// The raw line without the program's name; only the name may be enclosed in quotation marks.
std::string CommandLineText(int, char* const*) {
  const QString line = QString::fromWCharArray(GetCommandLineW());
  const QChar nameEnd = line.startsWith('"') ? '"' : ' ';
  const qsizetype end = line.indexOf(nameEnd, 1);
  return end < 0 ? std::string() : line.mid(end + 1).toStdString();
}

}  // namespace tarvis
