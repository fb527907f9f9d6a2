#include "dialogs/controls/fitted_dialog.h"

#include <QApplication>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QWindow>
#include <algorithm>

#include "dialogs/controls/controls.h"
#include "dialogs/controls/tab_control.h"

namespace tarvis {

namespace {

// What the window manager adds to the height and width of a window, as long as the real size is unknown.
constexpr QSize UsualFrame(10, 40);

}  // namespace

FittedDialog::FittedDialog(const char* name, const char* caption, const Plan& plan, QWidget* parent)
    : QDialog(parent), scroll_(new QScrollArea(this)) {
  setObjectName(QString::fromLatin1(name));
  setWindowTitle(QString::fromLatin1(caption));
  setFont(DialogFont());
  whole_ = PixelRect({0, 0, plan.Width, plan.Height}, *this).size();
  scroll_->setObjectName(QString::fromLatin1("upperPart"));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  auto* upper = new QWidget;
  upper->setFixedSize(whole_.width(), Pixels(plan.ButtonsTop, *this));
  scroll_->setWidget(upper);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* entered) { FollowFocus(entered); });
  // These are shortcuts, since a list would take the keys as letters to search for.
  const auto turns = [this](const QKeyCombination& keys, int tabs) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, tabs] { FrontTabs().Turn(tabs); });
  };
  turns(Qt::CTRL | Qt::Key_Tab, 1);
  turns(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
  Fit();
}

// The focus moves once more while the controls are deleted.
FittedDialog::~FittedDialog() {
  disconnect(qApp, nullptr, this, nullptr);
}

QPushButton* FittedDialog::AddButton(const char* name, const char* caption, const Rect& bounds) {
  QPushButton* button = MakeButton(name, caption, bounds, this);
  buttons_.push_back({button, button->pos()});
  Fit();
  return button;
}

QSize FittedDialog::RoomOnScreen() const {
  const QMargins known = windowHandle() == nullptr ? QMargins() : windowHandle()->frameMargins();
  const QSize frame(known.left() + known.right(), known.top() + known.bottom());
  return screen()->availableSize() - frame.expandedTo(UsualFrame);
}

void FittedDialog::Fit() {
  const QSize room = RoomOnScreen();
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroll_);
  QSize wanted = whole_;
  if (whole_.height() > room.height()) wanted.rwidth() += scrollBar;
  if (wanted.width() > room.width()) wanted.rheight() += scrollBar;
  const QSize size = wanted.boundedTo(room);
  const int hidden = whole_.height() - size.height();
  setFixedSize(size);
  scroll_->setGeometry(0, 0, size.width(), Upper()->height() - hidden);
  for (const BottomButton& button : buttons_) button.Button->move(button.Place - QPoint(0, hidden));
}

// Only from now on the window knows its screen and its frame.
void FittedDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  connect(windowHandle(), &QWindow::screenChanged, this, &FittedDialog::Fit, Qt::UniqueConnection);
  Fit();
}

void FittedDialog::FollowFocus(QWidget* control) {
  if (control != nullptr && Upper()->isAncestorOf(control)) scroll_->ensureWidgetVisible(control);
}

}  // namespace tarvis
