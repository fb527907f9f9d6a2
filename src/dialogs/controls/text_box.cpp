#include "dialogs/controls/text_box.h"

#include <QAction>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QValidator>
#include <algorithm>

#include "dialogs/controls/controls.h"

namespace tarvis {

namespace {

constexpr int Unlimited = 32767 * 1024;

bool IsLineBreak(QChar c) {
  return c == u'\r' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

// The length of the first line.
qsizetype FirstLineLength(const QString& text) {
  return std::find_if(text.begin(), text.end(), IsLineBreak) - text.begin();
}

QString FirstLine(const QString& text) {
  return text.left(FirstLineLength(text));
}

// Sees the text after every change. A change of the text here would delete the undo history of the box, so
// the box itself checks what the user enters; this handles only the other ways, such as assistive tools.
class OneLineOnly : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& cursor) const override {
    const qsizetype end = FirstLineLength(text);
    if (end == text.size()) return Acceptable;
    const QString after = text.mid(std::max<qsizetype>(cursor, end));  // it was there before
    text = text.left(end) + (cursor > end ? FirstLine(after) : QString());
    cursor = static_cast<int>(end);
    return Acceptable;
  }
};

// The clipboard that a key pastes from, as the toolkit has it.
QClipboard::Mode PasteSource(const QKeyEvent& event) {
  const bool selection = event.key() == Qt::Key_Insert && event.modifiers().testFlag(Qt::ControlModifier) &&
                         QGuiApplication::clipboard()->supportsSelection();
  return selection ? QClipboard::Selection : QClipboard::Clipboard;
}

}  // namespace

LineBox::LineBox(const char* name, int index, const char* accessibleName, int maximumLength,
                 const Rect& bounds, QWidget* parent)
    : QLineEdit(parent), maximumLength_(maximumLength) {
  NameControl(*this, name, index, QString::fromLatin1(accessibleName));
  Place(*this, bounds);
  ApplyMaximumLength(0);
  setValidator(new OneLineOnly(this));
  connect(this, &QLineEdit::textChanged, this,
          [this](const QString& text) { ApplyMaximumLength(text.size()); });
}

void LineBox::SetText(const std::string& text) {
  const QString wanted = FirstLine(QString::fromStdString(text));
  ApplyMaximumLength(wanted.size());
  setText(wanted);
}

void LineBox::SetMaximumLength(int characters) {
  maximumLength_ = characters;
  ApplyMaximumLength(text().size());
}

// The toolkit cuts a text that is longer than its maximum, so the maximum is never below the length of the
// text: what is too long stays, but the user can't add to it. Each change of the maximum deletes the undo
// history and moves the cursor, so it is changed only if necessary.
void LineBox::ApplyMaximumLength(qsizetype length) {
  const int wanted = std::max(maximumLength_ == 0 ? Unlimited : maximumLength_, static_cast<int>(length));
  if (wanted == maxLength()) return;
  const int cursor = cursorPosition();
  setMaxLength(wanted);
  setCursorPosition(cursor);
}

void LineBox::TypeOver(const QString& text) {
  selectAll();
  insert(Accepted(text));
}

QString LineBox::Accepted(const QString& piece) const {
  return FirstLine(piece);
}

void LineBox::PasteFrom(QClipboard::Mode source) {
  const QString piece = QGuiApplication::clipboard()->text(source);
  if (piece.isEmpty()) return;
  // The toolkit undoes what was typed before together with this, unless the cursor has moved in between.
  const int cursor = cursorPosition();
  if (!hasSelectedText()) {
    setCursorPosition(cursor == 0 ? static_cast<int>(text().size()) : 0);
    setCursorPosition(cursor);
  }
  insert(Accepted(piece));
}

void LineBox::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Paste)) return QLineEdit::keyPressEvent(event);
  PasteFrom(PasteSource(*event));
}

void LineBox::mouseReleaseEvent(QMouseEvent* event) {
  const bool pastes =
      event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection();
  if (!pastes) return QLineEdit::mouseReleaseEvent(event);
  deselect();
  PasteFrom(QClipboard::Selection);
}

void LineBox::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QString paste = QLineEdit::tr("&Paste");
  for (QAction* action : menu->actions()) {
    if (!action->text().startsWith(paste)) continue;
    action->disconnect(this);
    connect(action, &QAction::triggered, this, [this] { PasteFrom(QClipboard::Clipboard); });
  }
  menu->popup(event->globalPos());
}

void LineBox::dropEvent(QDropEvent* event) {
  const QString piece = event->mimeData()->text();
  const QString accepted = Accepted(piece);
  if (accepted == piece) return QLineEdit::dropEvent(event);
  QMimeData kept;
  kept.setText(accepted);
  QDropEvent drop(event->position(), event->possibleActions(), &kept, event->buttons(), event->modifiers());
  QLineEdit::dropEvent(&drop);
  event->setAccepted(drop.isAccepted());
}

void LineBox::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent kept(event->preeditString(), event->attributes());
  kept.setCommitString(Accepted(event->commitString()), event->replacementStart(),
                       event->replacementLength());
  QLineEdit::inputMethodEvent(&kept);
}

void LineBox::GiveFocus() {
  if (isVisible()) setFocus();
}

}  // namespace tarvis
