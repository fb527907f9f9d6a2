// Keeps the user in a field whose text was refused, whichever way he tries to leave it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace tarvis {

// Asks `refuse` whenever the focus has moved from one control of the window to another one of it, also if
// another window was in front in between; switching to another window or program alone doesn't count as
// leaving. A function that refuses has moved the focus back, has informed the user, and returns true; the
// press, the turn of the wheel or the shortcut that moved the focus then has no further effect. Mnemonics of
// buttons click at once.
class FocusGuard : public QObject {
  Q_OBJECT

 public:
  using Refuse = std::function<bool(QWidget& left, QWidget& entered)>;

  // `window` owns the guard.
  FocusGuard(QWidget& window, Refuse refuse);

  // Moves the focus to `control`, for a key that works on it without moving the focus. False if that was
  // refused.
  [[nodiscard]] bool Enter(QWidget& control);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FocusMoved(QWidget* entered);
  void Ask(QWidget& left, QWidget& entered);
  bool IsOfWindow(const QWidget* control) const;

  QWidget& window_;
  Refuse refuse_;
  QPointer<QWidget> inside_;  // the control that has the focus while the window is active
  bool asking_ = false;
  bool refused_ = false;
  bool swallowInput_ = false;
};

}  // namespace tarvis
