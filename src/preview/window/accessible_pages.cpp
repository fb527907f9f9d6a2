#include "preview/window/accessible_pages.h"

#include <QAccessibleWidget>

#include "preview/window/page_reader.h"

namespace tarvis {
namespace {

// What the toolkit calls a sentence is a cell here.
TextUnit UnitOf(QAccessible::TextBoundaryType type) {
  switch (type) {
    case QAccessible::CharBoundary:
      return TextUnit::Character;
    case QAccessible::WordBoundary:
      return TextUnit::Word;
    case QAccessible::SentenceBoundary:
      return TextUnit::Cell;
    case QAccessible::ParagraphBoundary:
    case QAccessible::LineBoundary:
      return TextUnit::Line;
    default:
      return TextUnit::All;
  }
}

class AccessiblePages : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  AccessiblePages(PageView& view, PageReader& reader)
      : QAccessibleWidget(&view, QAccessible::Document), reader_(reader) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
  }

  int characterCount() const override { return static_cast<int>(reader_.Text().Text().size()); }
  QString text(int start, int end) const override { return reader_.Text().Text().mid(start, end - start); }
  QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const override {
    return Pass(reader_.Text().UnitAt(Known(offset), UnitOf(type)), start, end);
  }
  QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                           int* end) const override {
    return Pass(reader_.Text().UnitBefore(Known(offset), UnitOf(type)), start, end);
  }
  QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                          int* end) const override {
    return Pass(reader_.Text().UnitAfter(Known(offset), UnitOf(type)), start, end);
  }
  QString attributes(int offset, int* start, int* end) const override {
    const int known = Known(offset);
    const LinearText::Piece* piece = reader_.Text().PieceAt(known);
    *start = piece != nullptr ? piece->Start : 0;
    *end = piece != nullptr ? piece->Start + piece->Length : 0;
    return reader_.LookAt(known);
  }

  int cursorPosition() const override { return reader_.Caret(); }
  void setCursorPosition(int position) override { reader_.MoveCaret(position); }
  QRect characterRect(int offset) const override { return reader_.PlaceOf({offset, offset + 1}); }
  int offsetAtPoint(const QPoint& point) const override { return reader_.OffsetAt(point); }
  void scrollToSubstring(int start, int /*end*/) override { reader_.Show(start); }

  int selectionCount() const override {
    const TextSpan span = reader_.Selection();
    return span.Start == span.End ? 0 : 1;
  }
  void selection(int /*index*/, int* start, int* end) const override {
    const TextSpan span = reader_.Selection();
    *start = span.Start;
    *end = span.End;
  }
  void addSelection(int start, int end) override { reader_.Select({start, end}); }
  void removeSelection(int /*index*/) override { reader_.MoveCaret(reader_.Caret()); }
  void setSelection(int /*index*/, int start, int end) override { reader_.Select({start, end}); }

 private:
  // The toolkit gives -1 for the end and -2 for the caret.
  int Known(int offset) const {
    if (offset == -1) return characterCount();
    return offset == -2 ? reader_.Caret() : offset;
  }
  QString Pass(const TextSpan& span, int* start, int* end) const {
    *start = span.Start;
    *end = span.End;
    return text(span.Start, span.End);
  }

  PageReader& reader_;
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  auto* view = qobject_cast<PageView*>(object);
  if (view == nullptr) return nullptr;
  auto* reader = view->findChild<PageReader*>({}, Qt::FindDirectChildrenOnly);
  return reader == nullptr ? nullptr : new AccessiblePages(*view, *reader);
}

}  // namespace

void OfferAccessiblePages() {
  QAccessible::installFactory(Make);  // which ignores a factory that it has already
}

}  // namespace tarvis
