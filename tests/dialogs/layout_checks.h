// What the eye would find wrong: clipped captions, controls on top of each other, keys that fight.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>
#include <QTabBar>
#include <map>
#include <string>
#include <vector>

#include "dialogs/controls/controls.h"

namespace tarvis {

// Saves a picture of the dialog for the eye, where TARVIS_GRABS names a folder.
inline void Grab(QWidget& window, const std::string& name) {
  const QString folder = qEnvironmentVariable("TARVIS_GRABS");
  if (!folder.isEmpty()) window.grab().save(folder + "/" + QString::fromStdString(name) + ".png");
}

// Labels and controls that are side by side on one surface.
inline std::vector<QWidget*> Visible(const QWidget& container) {
  std::vector<QWidget*> shown;
  for (QWidget* child : container.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const auto* frame = qobject_cast<QFrame*>(child);
    const bool rule = frame != nullptr && frame->frameShape() == QFrame::HLine;
    if (child->isVisible() && !rule) shown.push_back(child);
  }
  return shown;
}
// The designed places of neighbours overlap by up to 30 twips of their empty edges; and the text boxes of
// title and greeting lie on the empty end of what is beside or above them.
inline bool Overlap(const QWidget& a, const QWidget& b) {
  if (a.objectName() == "chkHeader_0" && b.objectName() == "txtTitle") return false;
  if (a.objectName() == "lblGreeting" && b.objectName() == "txtGreeting") return false;
  const int edge = Pixels(22, a);  // half of that, and what rounding adds
  const QMargins edges(edge, edge, edge, edge);
  return a.geometry().marginsRemoved(edges).intersects(b.geometry().marginsRemoved(edges));
}
inline void ExpectApart(const QWidget& container) {
  const std::vector<QWidget*> shown = Visible(container);
  for (std::size_t i = 0; i < shown.size(); ++i) {
    EXPECT_TRUE(container.rect().contains(shown[i]->geometry())) << shown[i]->objectName().toStdString();
    for (std::size_t j = i + 1; j < shown.size(); ++j) {
      EXPECT_FALSE(Overlap(*shown[i], *shown[j]))
          << shown[i]->objectName().toStdString() << " lies on " << shown[j]->objectName().toStdString();
    }
  }
}
inline void ExpectCaptionsWhole(const QWidget& window) {
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || button->objectName().isEmpty()) continue;
    if (qobject_cast<const QPushButton*>(button) != nullptr) {
      EXPECT_LE(button->fontMetrics().horizontalAdvance(PlainCaption(button->text()).trimmed()) + 4,
                button->width())
          << button->objectName().toStdString();
      continue;
    }
    if (qobject_cast<const QTabBar*>(button->parentWidget()) != nullptr) continue;  // its scroll buttons
    const bool oneLine = button->sizeHint().width() <= button->width();
    const QRect two = button->fontMetrics().boundingRect(
        QRect(0, 0, button->width() - 22, 100), Qt::TextWordWrap, PlainCaption(button->text()).trimmed());
    EXPECT_TRUE(oneLine || (two.height() <= button->height() + 1 && two.width() <= button->width() - 22))
        << button->objectName().toStdString();
  }
}
// Every tab is wide enough for its caption, and all of them fit into the bar.
inline void ExpectTabsWhole(const QTabBar& bar) {
  for (int tab = 0; tab < bar.count(); ++tab) {
    const int caption = bar.fontMetrics().horizontalAdvance(PlainCaption(bar.tabText(tab)));
    const int padding = bar.style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &bar);
    EXPECT_LE(caption + padding, bar.tabRect(tab).width()) << tab;
    EXPECT_TRUE(bar.rect().contains(bar.tabRect(tab))) << tab;
  }
}
// No two mnemonics that are alive at the same time are the same.
inline void ExpectMnemonicsDiffer(const QWidget& window) {
  std::map<QString, std::string> owners;
  const auto claim = [&owners](const QString& caption, const std::string& owner) {
    const QString key = QKeySequence::mnemonic(caption).toString();
    if (key.isEmpty()) return;
    EXPECT_TRUE(owners.emplace(key, owner).second)
        << owner << " and " << owners[key] << " share " << key.toStdString();
  };
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible()) claim(button->text(), button->objectName().toStdString());
  }
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr)
      claim(label->text(), label->objectName().toStdString());
  }
  for (const QGroupBox* group : window.findChildren<QGroupBox*>())
    claim(group->title(), group->objectName().toStdString());
  for (const QTabBar* bar : window.findChildren<QTabBar*>()) {
    for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab) claim(bar->tabText(tab), "tab");
  }
}
inline void ExpectEverythingNamed(const QWidget& window) {
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    if (control->objectName().isEmpty() || control->objectName().startsWith(QString::fromLatin1("qt_")))
      continue;
    if (!(control->focusPolicy() & Qt::TabFocus)) continue;
    EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
  }
}
}  // namespace tarvis
