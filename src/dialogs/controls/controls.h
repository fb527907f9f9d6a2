// The plain controls of the dialogs: the toolkit's own, extended by names, captions and values.
#pragma once

#include <QCheckBox>
#include <QFont>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QString>
#include <cstdint>
#include <vector>

#include "dialogs/controls/place.h"

namespace tarvis {

// A caption without its mnemonic mark; a doubled ampersand is a literal one.
QString PlainCaption(const QString& caption);

// Sets the object name, `name` or `name_index` for a member of a family, and the accessible name.
void NameControl(QWidget& control, const char* name, int index, const QString& accessibleName);
constexpr int NoFamily = -1;

// Arial in the size of the user's font.
QFont DialogFont();

// Chains the focusable children of `container` row by row, each row from left to right.
void SetReadingOrder(QWidget& container);

// A check box with the three values of an option element.
class TickBox : public QCheckBox {
  Q_OBJECT

 public:
  // `caption` may hold a mnemonic mark. Where the caption doesn't fit into `bounds` it wraps if there is room
  // for two lines; otherwise the box grows to the right.
  TickBox(const char* name, int index, const char* caption, const Rect& bounds, QWidget* parent);

  // 0 unchecked, 1 checked, 2 greyed: a value that only an options file can bring.
  std::int16_t Value() const;
  // Any other value throws RunTimeFailure.
  void SetValue(std::int16_t value);
  bool IsOn() const { return Value() == 1; }

 signals:
  // The click: it comes from the user and also from SetValue, but only when the value changes.
  void ValueChanged();

 protected:
  void nextCheckState() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool wraps_ = false;
};

// Its handling runs on `toggled` with true only: switching it off runs nothing.
class OptionButton : public QRadioButton {
  Q_OBJECT

 public:
  OptionButton(const char* name, int index, const char* caption, const Rect& bounds, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool wraps_ = false;
};

// A group whose rule runs at the height of its title, so that controls right below the title are inside it.
class GroupFrame : public QGroupBox {
  Q_OBJECT

 public:
  GroupFrame(const char* name, const char* caption, const Rect& bounds, QWidget* parent);

  // The control inside that the mnemonic of the title gives the focus. The toolkit would give it to the one
  // that had it last.
  void SetBuddy(QWidget* control) { buddy_ = control; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* buddy_ = nullptr;
};

enum class LabelLines { One, Wrapped };

// A label of one line grows to the right and to the height of its font; one that wraps keeps its width.
QLabel* MakeLabel(const char* name, int index, const char* caption, const Rect& bounds, QWidget* parent,
                  LabelLines lines = LabelLines::One);

QPushButton* MakeButton(const char* name, const char* caption, const Rect& bounds, QWidget* parent);

}  // namespace tarvis
