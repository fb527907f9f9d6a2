// A text box for the path of a file, which also takes a file dropped from a file manager.
#pragma once

#include "dialogs/controls/text_box.h"

namespace tarvis {

class PathBox : public LineBox {
  Q_OBJECT

 public:
  using LineBox::LineBox;

 signals:
  // The box now holds the path of a file that was dropped on it.
  void FileDropped();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
};

}  // namespace tarvis
