#include "dialogs/controls/path_box.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace tarvis {

namespace {

// The first local file of what is dragged, empty if there is none.
QString DraggedFile(const QMimeData* dragged) {
  for (const QUrl& url : dragged->urls()) {
    if (url.isLocalFile()) return QDir::toNativeSeparators(url.toLocalFile());
  }
  return {};
}

}  // namespace

void PathBox::dragEnterEvent(QDragEnterEvent* event) {
  if (DraggedFile(event->mimeData()).isEmpty()) return LineBox::dragEnterEvent(event);
  event->acceptProposedAction();
}

void PathBox::dragMoveEvent(QDragMoveEvent* event) {
  if (DraggedFile(event->mimeData()).isEmpty()) return LineBox::dragMoveEvent(event);
  event->acceptProposedAction();
}

void PathBox::dropEvent(QDropEvent* event) {
  const QString file = DraggedFile(event->mimeData());
  if (file.isEmpty()) return LineBox::dropEvent(event);
  TypeOver(file);
  emit FileDropped();
  event->acceptProposedAction();
}

}  // namespace tarvis
