#include "preview/window/page_reader.h"

#include <QAccessible>
#include <algorithm>

#include "preview/pages/page_places.h"
#include "preview/text/text_geometry.h"
#include "preview/window/accessible_pages.h"
#include "preview/window/selector.h"

namespace tarvis {

PageReader::PageReader(DocumentText& text, PageView& view, Selector& selector)
    : QObject(&view), text_(text), view_(view), selector_(selector), linear_(text) {
  setObjectName(QStringLiteral("pageReader"));
  OfferAccessiblePages();
  connect(&selector, &Selector::Changed, this, &PageReader::FollowSelection);
  connect(&view, &PageView::PlaceChanged, this, &PageReader::FollowPage);
  FollowPage();
}

void PageReader::MoveCaret(int offset) {
  Select({offset, offset});
}

TextSpan PageReader::Selection() {
  const auto [anchor, end] = selector_.Ends();
  const int from = linear_.OffsetOf(anchor), to = linear_.OffsetOf(end);
  return {std::min(from, to), std::max(from, to)};
}

void PageReader::Select(const TextSpan& span) {
  selector_.Select(linear_.PositionOf(span.Start), linear_.PositionOf(span.End));
  Show(span.End);
}

QRect PageReader::PlaceOf(const TextSpan& span) {
  const LinearText::Piece* piece = linear_.PieceAt(span.Start);
  if (piece == nullptr) return {};
  const ReadPiece& read = text_.Page(piece->Page).Pieces[piece->Index];
  const Document& document = text_.Source();
  const TextPosition from = linear_.PositionOf(span.Start);
  const TextPosition to = linear_.PositionOf(std::min(span.End, piece->Start + piece->Length));
  QRectF box;
  for (const QRectF& part : BoxesOfCharacters(document, read, from.Character, to.Character)) box |= part;
  if (box.isNull()) box = BoxOfLine(document, read);
  const QRect place = PlaceInView(view_, piece->Page, box).toAlignedRect();
  return {view_.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int PageReader::OffsetAt(QPoint place) {
  const QPoint inView = view_.viewport()->mapFromGlobal(place);
  const PageView::Spot spot = view_.SpotAt(inView);
  if (!view_.viewport()->rect().contains(inView) || spot.Page < 0) return -1;
  TextSelection nearest(text_);
  nearest.Start(spot.Page, spot.Point);
  return linear_.OffsetOf(nearest.End());
}

void PageReader::Show(int offset) {
  const LinearText::Piece* piece = linear_.PieceAt(offset);
  if (piece == nullptr) return;
  view_.Reveal(piece->Page, BoxOfLine(text_.Source(), text_.Page(piece->Page).Pieces[piece->Index]));
}

QString PageReader::LookAt(int offset) {
  const LinearText::Piece* piece = linear_.PieceAt(offset);
  if (piece == nullptr) return {};
  const ReadPiece& read = text_.Page(piece->Page).Pieces[piece->Index];
  const Document& document = text_.Source();
  const Item& item = document.Items[read.Item];
  if (item.Kind != ItemKind::Text) return {};
  const TextStyle& style = document.Styles[document.Texts[item.Source].Style];
  return QStringLiteral("font-family:Arial;font-size:%1pt;font-weight:%2;")
      .arg(style.Size)
      .arg(style.Bold ? QStringLiteral("bold") : QStringLiteral("normal"));
}

void PageReader::FollowSelection() {
  caret_ = selector_.Ends().second;
  if (!QAccessible::isActive()) return;
  const TextSpan span = Selection();
  if (span.Start != span.End) {
    QAccessibleTextSelectionEvent event(&view_, span.Start, span.End);
    event.setCursorPosition(Caret());
    QAccessible::updateAccessibility(&event);
  } else {
    QAccessibleTextCursorEvent event(&view_, Caret());
    QAccessible::updateAccessibility(&event);
  }
}

void PageReader::Announce(const QString& words) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)  // before that, tools learn of it by the name that changes
  QAccessibleAnnouncementEvent event(&view_, words);
  QAccessible::updateAccessibility(&event);
#else
  Q_UNUSED(words)
#endif
}

// The page is the name of the view, whose change is made known, and the caret goes along, so that reading
// continues on the page that is looked at.
void PageReader::FollowPage() {
  const int page = view_.CurrentPage();
  const int count = view_.Layout().PageCount();
  if (page == page_) return;
  const bool isFirst = page_ < 0;
  page_ = page;
  const QString name = count == 0 ? tr("No pages") : tr("Page %1 of %2").arg(page + 1).arg(count);
  view_.setAccessibleName(name);
  if (!isFirst && QAccessible::isActive()) Announce(name);
  if (caret_.Page == page) return;
  caret_ = {page, 0, 0};
  if (!QAccessible::isActive()) return;
  QAccessibleTextCursorEvent event(&view_, Caret());
  QAccessible::updateAccessibility(&event);
}

}  // namespace tarvis
