// Help files on Windows: compiled ones have a viewer.
#include <QProcess>
#include <QString>

#include "platform/help_viewer.h"

namespace tarvis {

bool OpenInHelpViewer(const std::filesystem::path& file, std::int32_t context) {
  const QString name = QString::fromStdU16String(file.u16string());
  if (!name.endsWith(".chm", Qt::CaseInsensitive)) return false;
  return QProcess::startDetached("hh.exe", {"-mapid", QString::number(context), name});
}

}  // namespace tarvis
