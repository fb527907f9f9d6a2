#include "platform/help_opener.h"

#include <QApplication>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QUrl>
#include <filesystem>
#include <string>

#include "dialogs/controls/help_context.h"
#include "platform/help_viewer.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

// Some systems accept any bytes as the name of a file. Those that are no text are kept as they are, as
// escapes of the address.
QUrl AddressOf(const std::filesystem::path& file) {
  const std::u8string name = file.generic_u8string();
  const QByteArray bytes(reinterpret_cast<const char*>(name.data()), static_cast<qsizetype>(name.size()));
  const QString text = QString::fromUtf8(bytes);
  if (text.toUtf8() == bytes) return QUrl::fromLocalFile(text);
  return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"));
}

}  // namespace

void HelpOpener::Open() const {
  const std::filesystem::path file = NativePath(helpFile_);
  const std::int32_t own = HelpContextOf(QApplication::focusWidget());
  const std::int32_t context = own != 0 ? own : context_;
  if (OpenInHelpViewer(file, context)) return;
  QUrl place = AddressOf(file);
  if (place.path().endsWith(".html", Qt::CaseInsensitive)) place.setFragment(QString::number(context));
  QDesktopServices::openUrl(place);
}

bool HelpOpener::eventFilter(QObject* watched, QEvent* event) {
  const bool isHelpKey =
      event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1;
  if (!isHelpKey || helpFile_.empty()) return QObject::eventFilter(watched, event);
  Open();
  return true;
}

}  // namespace tarvis
