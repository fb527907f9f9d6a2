#include "dialogs/controls/focus_guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMetaObject>
#include <QShortcutEvent>
#include <utility>

namespace tarvis {

FocusGuard::FocusGuard(QWidget& window, Refuse refuse)
    : QObject(&window), window_(window), refuse_(std::move(refuse)) {
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* entered) { FocusMoved(entered); });
  qApp->installEventFilter(this);
}

bool FocusGuard::IsOfWindow(const QWidget* control) const {
  return control != nullptr && window_.isAncestorOf(control);
}

void FocusGuard::FocusMoved(QWidget* entered) {
  if (!IsOfWindow(entered)) return;
  const QPointer<QWidget> left = std::exchange(inside_, entered);
  if (!asking_ && left != nullptr && left != entered) Ask(*left, *entered);
}

void FocusGuard::Ask(QWidget& left, QWidget& entered) {
  asking_ = true;
  const bool refused = refuse_(left, entered);
  asking_ = false;
  if (!refused) return;
  // A window that isn't active, as just after a message, moves its focus without a signal.
  inside_ = window_.focusWidget();
  refused_ = true;
  // The toolkit moves the focus just before it delivers the press, so the press comes before any later event.
  swallowInput_ = true;
  const auto letInputThrough = [this] { swallowInput_ = false; };
  QMetaObject::invokeMethod(this, letInputThrough, Qt::QueuedConnection);
}

bool FocusGuard::Enter(QWidget& control) {
  refused_ = false;
  if (!control.hasFocus()) control.setFocus(Qt::ShortcutFocusReason);
  if (!refused_) FocusMoved(&control);  // nothing is left to do if the signal was sent
  return !refused_;
}

bool FocusGuard::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::MouseButtonPress ||
                     event->type() == QEvent::MouseButtonDblClick || event->type() == QEvent::Wheel;
  if (!press && event->type() != QEvent::Shortcut) return false;
  auto* control = qobject_cast<QWidget*>(watched);
  if (!IsOfWindow(control)) return false;
  if (press) {
    if (swallowInput_)
      event->accept();  // otherwise a turn of the wheel would be passed to the control's parent
    return std::exchange(swallowInput_, false);
  }
  auto* button = qobject_cast<QAbstractButton*>(control);
  if (button == nullptr || !button->isEnabled()) return false;
  // A mnemonic presses a push button without giving it the focus.
  if (!Enter(*button)) return true;
  if (static_cast<QShortcutEvent*>(event)->isAmbiguous()) return false;
  // The toolkit would let a tenth of a second pass, and keys that follow would overtake the click.
  button->click();
  return true;
}

}  // namespace tarvis
