// A tab control whose pages share the coordinates of the control itself, its row of tabs included.
#pragma once

#include <QTabBar>
#include <QWidget>
#include <vector>

#include "dialogs/controls/place.h"

namespace tarvis {

// Unlike the toolkit's, it never changes the page while a control of the old page holds the focus: the focus
// goes to the row of tabs first, and if a handler moves it back, the tab isn't changed.
class TabControl : public QWidget {
  Q_OBJECT

 public:
  TabControl(const Rect& bounds, QWidget* parent);

  // `caption` may hold a mnemonic mark.
  QWidget* AddTab(const char* caption);
  int CurrentTab() const { return current_; }
  void SetCurrentTab(int index);
  // Goes on by `tabs` tabs, after the last one to the first.
  void Turn(int tabs);
  QWidget* Page(int index) const { return pages_.at(static_cast<std::size_t>(index)); }
  QTabBar* Bar() const { return bar_; }

 signals:
  // `left` is the tab that was in front before.
  void TabChanged(int left);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void BringForward(int index);

  QTabBar* bar_;
  std::vector<QWidget*> pages_;
  int current_ = 0;
};

}  // namespace tarvis
