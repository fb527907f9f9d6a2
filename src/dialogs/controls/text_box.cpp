#include "dialogs/controls/text_box.h"

#include <algorithm>

#include "dialogs/controls/controls.h"

namespace tarvis {

namespace {
constexpr int Unlimited = 32767 * 1024;
}

LineBox::LineBox(const char* name, int index, const char* accessibleName, int maximumLength,
                 const Bounds& bounds, QWidget* parent)
    : QLineEdit(parent), maximumLength_(maximumLength) {
  NameControl(*this, name, index, QString::fromLatin1(accessibleName));
  Place(*this, bounds);
  ApplyMaximumLength(0);
  connect(this, &QLineEdit::textChanged, this,
          [this](const QString& text) { ApplyMaximumLength(text.size()); });
}

void LineBox::SetText(const std::string& text) {
  const QString wanted = QString::fromStdString(text);
  ApplyMaximumLength(wanted.size());
  setText(wanted);
}

void LineBox::SetMaximumLength(int characters) {
  maximumLength_ = characters;
  ApplyMaximumLength(text().size());
}

// The toolkit cuts a text that is longer than its maximum, so that never goes below the text's own length:
// what is too long stays, but the user can't add to it. Each change of the maximum costs the user the undo
// history and the place of the cursor, so there is none without need.
void LineBox::ApplyMaximumLength(qsizetype length) {
  const int wanted = std::max(maximumLength_ == 0 ? Unlimited : maximumLength_, static_cast<int>(length));
  if (wanted == maxLength()) return;
  const int cursor = cursorPosition();
  setMaxLength(wanted);
  setCursorPosition(cursor);
}

void LineBox::TypeOver(const QString& text) {
  selectAll();
  insert(text);
}

void LineBox::GiveFocus() {
  if (isVisible()) setFocus();
}

}  // namespace tarvis
