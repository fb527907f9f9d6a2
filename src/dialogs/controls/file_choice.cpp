#include "dialogs/controls/file_choice.h"

#include <QDir>
#include <QFileDialog>
#include <QStringList>
#include <chrono>
#include <future>
#include <memory>

#include "dialogs/controls/detached.h"
#include "text/native_path.h"

namespace tarvis {

namespace {

constexpr std::chrono::milliseconds LongestAnswer{300};

// False also if the answer takes long.
bool IsSoonKnownAsFolder(const std::filesystem::path& path, const FolderQuestion& isFolder) {
  const auto answer = std::make_shared<std::promise<bool>>();
  std::future<bool> known = answer->get_future();
  const bool asked = RunDetached([answer, path, isFolder] { answer->set_value(isFolder(path)); });
  return asked && known.wait_for(LongestAnswer) == std::future_status::ready && known.get();
}

}  // namespace

QString ChooseFile(QWidget* parent, const QString& filter, const std::string& present) {
  return QDir::toNativeSeparators(
      QFileDialog::getOpenFileName(parent, {}, FolderOf(present), ToolkitFilter(filter)));
}

bool IsFolder(const std::filesystem::path& path) {
  std::error_code unreadable;
  return std::filesystem::is_directory(path, unreadable);
}

QString FolderOf(const std::string& path, const FolderQuestion& isFolder) {
  const std::filesystem::path folder = NativePath(path).parent_path();
  if (!folder.is_absolute() || !IsSoonKnownAsFolder(folder, isFolder)) return {};
  return QString::fromStdU16String(folder.u16string());
}

QString ToolkitFilter(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList entries;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(u';')) patterns << pattern << pattern.toLower();
    const QString description = parts[i].section(u'(', 0, 0);
    entries << description + u'(' + patterns.join(u' ') + u')';
  }
  return entries.join(QString::fromLatin1(";;"));
}

}  // namespace tarvis
