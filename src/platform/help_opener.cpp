#include "platform/help_opener.h"

#include <QApplication>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QUrl>

#include "dialogs/controls/help_context.h"
#include "text/native_path.h"

namespace tarvis {

void HelpOpener::Open() const {
  const QString path = QString::fromStdU16String(NativePath(helpFile_).u16string());
  QUrl place = QUrl::fromLocalFile(path);
  if (path.endsWith(".html", Qt::CaseInsensitive)) {
    const std::int32_t own = HelpContextOf(QApplication::focusWidget());
    place.setFragment(QString::number(own != 0 ? own : context_));
  }
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
