#include "dialogs/controls/tab_control.h"

#include <QApplication>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

#include "dialogs/controls/controls.h"

namespace tarvis {

namespace {

// Twips.
constexpr float BarHeight = 330;       // the topmost controls of the pages begin at 360
constexpr float CaptionPadding = 150;  // both sides; narrower than the styles have it, so that five tabs fit

class LowTabBar : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  QSize tabSizeHint(int index) const override {
    return QSize(QTabBar::tabSizeHint(index).width(), Pixels(BarHeight, *this));
  }
  QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
};

class NarrowTabs : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    if (metric == PM_TabBarTabHSpace && widget != nullptr) return Pixels(CaptionPadding, *widget);
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
};

}  // namespace

TabControl::TabControl(const Rect& bounds, QWidget* parent) : QWidget(parent), bar_(new LowTabBar(this)) {
  NameControl(*this, "SSTab1", NoFamily, {});
  Place(*this, bounds);
  auto* narrow = new NarrowTabs;
  narrow->setParent(bar_);
  bar_->setStyle(narrow);
  bar_->setFocusPolicy(Qt::StrongFocus);
  bar_->setDrawBase(false);
  bar_->setUsesScrollButtons(false);
  bar_->setElideMode(Qt::ElideNone);
  bar_->setExpanding(true);
  bar_->setGeometry(0, 0, width(), Pixels(BarHeight, *this));
  connect(bar_, &QTabBar::currentChanged, this, &TabControl::BringForward);
}

QWidget* TabControl::AddTab(const char* caption) {
  auto* page = new QWidget(this);
  page->setGeometry(rect());
  page->setVisible(pages_.empty());
  const QString plain = PlainCaption(QString::fromLatin1(caption));
  page->setAccessibleName(plain);
  pages_.push_back(page);
  const QSignalBlocker quiet(bar_);
  bar_->addTab(QString::fromLatin1(caption));
  bar_->raise();
  return page;
}

void TabControl::SetCurrentTab(int index) {
  bar_->setCurrentIndex(index);
}

void TabControl::Turn(int tabs) {
  const int count = bar_->count();
  SetCurrentTab((current_ + tabs + count) % count);
}

void TabControl::BringForward(int index) {
  const int left = current_;
  if (index == left || index < 0) return;
  const QWidget* focus = QApplication::focusWidget();
  if (focus != nullptr && Page(left)->isAncestorOf(focus)) {
    bar_->setFocus(Qt::OtherFocusReason);
    if (!bar_->hasFocus()) {
      const QSignalBlocker quiet(bar_);
      bar_->setCurrentIndex(left);
      return;
    }
  }
  current_ = index;
  Page(index)->show();
  Page(left)->hide();
  emit TabChanged(left);
}

void TabControl::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionTabWidgetFrame option;
  option.initFrom(this);
  option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  option.tabBarSize = bar_->size();
  option.tabBarRect = bar_->geometry();
  option.selectedTabRect = bar_->tabRect(bar_->currentIndex());
  option.rect = rect().adjusted(0, bar_->height() - 1, 0, 0);
  painter.drawPrimitive(QStyle::PE_FrameTabWidget, option);
}

}  // namespace tarvis
