// Marking an entry of a list or tree while another part of the window has the focus.
#pragma once

#include <QObject>

class QAbstractItemView;
class QModelIndex;

namespace tarvis {

// To assistive tools the toolkit announces each new current entry as if it had the focus. So an entry is only
// selected as long as its view doesn't have the focus, and is made the current one when it gets it.
class QuietMark : public QObject {
  Q_OBJECT
 public:
  // `view` owns it.
  explicit QuietMark(QAbstractItemView& view);

  void Show(const QModelIndex& index);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAbstractItemView& view_;
};

}  // namespace tarvis
