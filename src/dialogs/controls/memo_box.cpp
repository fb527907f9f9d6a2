#include "dialogs/controls/memo_box.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QTextCursor>
#include <algorithm>

#include "dialogs/controls/controls.h"
#include "text/text.h"

namespace tarvis {

namespace {

constexpr QChar ParagraphEnd(0x2029);  // a line break, as the toolkit keeps it
constexpr QChar LoneLineFeed(0x2028);  // also shown as a line break, but another character
constexpr int TextMarginPixels = 2;

// `raw` as the toolkit keeps it, with CR LF.
QString WithLineBreaks(QString raw) {
  raw.replace(ParagraphEnd, QString::fromLatin1("\r\n"));
  raw.replace(LoneLineFeed, QChar(u'\n'));
  return raw;
}

// The texts that the toolkit takes as one line break each.
QString Normalized(QString text) {
  text.replace(QString::fromLatin1("\r\n"), QString::fromLatin1("\n"));
  text.replace(QChar(u'\r'), QChar(u'\n'));
  text.replace(ParagraphEnd, QChar(u'\n'));
  text.replace(LoneLineFeed, QChar(u'\n'));
  return text;
}

// The first `room` characters of a normalized text; a line break counts as two and is never divided.
QString CutToRoom(const QString& text, qsizetype room) {
  qsizetype end = 0;
  while (end < text.size()) {
    const bool pair = text[end].isHighSurrogate() && end + 1 < text.size();
    room -= text[end] == u'\n' || pair ? 2 : 1;
    if (room < 0) break;
    end += pair ? 2 : 1;
  }
  return text.left(end);
}

}  // namespace

MemoBox::MemoBox(const char* name, int index, const char* accessibleName, int maximumLength,
                 const Rect& bounds, QWidget* parent)
    : QPlainTextEdit(parent), maximumLength_(maximumLength) {
  NameControl(*this, name, index, QString::fromLatin1(accessibleName));
  Place(*this, bounds);
  setTabChangesFocus(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // lines wrap
  document()->setDocumentMargin(TextMarginPixels);
}

std::string MemoBox::Text() const {
  return WithLineBreaks(document()->toRawText()).toStdString();
}

void MemoBox::SetText(const std::string& text) {
  QString kept = QString::fromStdString(text);
  const QString mark(ParagraphEnd);
  kept.replace(QString::fromLatin1("\r\n"), mark);
  kept.replace(QChar(u'\n'), LoneLineFeed);
  setPlainText(kept);
}

void MemoBox::GiveFocus() {
  if (isVisible()) setFocus();
}

qsizetype MemoBox::Room() const {
  const qsizetype selected = WithLineBreaks(textCursor().selectedText()).size();
  return std::max<qsizetype>(0, maximumLength_ - WithLineBreaks(document()->toRawText()).size() + selected);
}

void MemoBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return PressEnter();
  const bool types = !event->text().isEmpty() && event->text().at(0).isPrint() &&
                     !event->modifiers().testFlag(Qt::ControlModifier);
  if (types && event->text().size() > Room()) return event->accept();
  QPlainTextEdit::keyPressEvent(event);
}

// The toolkit would insert another kind of line break for Enter with Shift.
void MemoBox::PressEnter() {
  if (enterLimit_ >= 0 && CountLineBreaks(Text()) >= enterLimit_) return;
  if (Room() < 2) return;
  textCursor().insertBlock();
  ensureCursorVisible();
}

void MemoBox::inputMethodEvent(QInputMethodEvent* event) {
  const QString fitting = CutToRoom(Normalized(event->commitString()), Room());
  if (fitting == event->commitString()) return QPlainTextEdit::inputMethodEvent(event);
  QInputMethodEvent cut(event->preeditString(), event->attributes());
  cut.setCommitString(fitting);
  QPlainTextEdit::inputMethodEvent(&cut);
}

void MemoBox::insertFromMimeData(const QMimeData* source) {
  if (!source->hasText()) return;
  textCursor().insertText(CutToRoom(Normalized(source->text()), Room()));
  ensureCursorVisible();
}

// The frame is that of a box of one line, which shows the focus.
bool MemoBox::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return QPlainTextEdit::event(event);
  QStylePainter painter(this);
  QStyleOptionFrame option;
  initStyleOption(&option);
  option.state.setFlag(QStyle::State_Sunken);
  option.state.setFlag(QStyle::State_HasFocus, hasFocus());
  painter.drawPrimitive(QStyle::PE_PanelLineEdit, option);
  return true;
}

void MemoBox::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) selectAll();
}

}  // namespace tarvis
