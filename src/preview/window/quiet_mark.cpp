#include "preview/window/quiet_mark.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QItemSelectionModel>

namespace tarvis {

QuietMark::QuietMark(QAbstractItemView& view) : QObject(&view), view_(view) {
  view.installEventFilter(this);
}

void QuietMark::Show(const QModelIndex& index) {
  if (view_.hasFocus()) return view_.setCurrentIndex(index);
  view_.selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
  view_.scrollTo(index);
}

bool QuietMark::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::FocusIn) return false;
  const QModelIndexList selected = view_.selectionModel()->selectedIndexes();
  if (!selected.isEmpty()) view_.setCurrentIndex(selected.first());
  return false;
}

}  // namespace tarvis
