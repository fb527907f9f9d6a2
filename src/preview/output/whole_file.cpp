#include "preview/output/whole_file.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "platform/files/file_in_use.h"
#include "platform/files/settle_file.h"
#include "printfiles/replace_file.h"

namespace tarvis {
namespace {

// A file that this user may not write is not replaced either, though its folder would allow it.
bool IsProtected(const std::filesystem::path& path) {
  const QFileInfo old(path);
  return old.exists() && !old.isWritable();
}

// The characters of the name, whatever code page the system has.
QString NameOf(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

QString Translated(const char* text) {
  return QCoreApplication::translate("WholeFile", text);
}

}  // namespace

QString WriteWholeFile(std::string_view bytes, const std::filesystem::path& path) {
  const QString name = NameOf(path);
  if (!CanBeReplaced(path))
    return Translated("\"%1\" is not an ordinary file and is not replaced.").arg(name);
  std::error_code error = std::make_error_code(std::errc::permission_denied);
  if (!IsProtected(path) && ReplaceFile(path, bytes, SettleFile, error)) return {};
  return Translated("\"%1\" can't be written: %2").arg(name, QString::fromStdString(ReasonOf(error)));
}

}  // namespace tarvis
