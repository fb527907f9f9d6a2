#include "preview/window/selector.h"

#include "preview/window/clipboard_forms.h"

namespace tarvis {
namespace {

const QColor SelectionTint(170, 205, 255);

}  // namespace

Selector::Selector(DocumentText& text, PageView& view, PageInput& input, QObject* parent)
    : QObject(parent), view_(view), selection_(text), column_(text.Source()) {
  setObjectName(QStringLiteral("selector"));
  input.SetTextTest([this](const PageView::Spot& spot) {
    return spot.Page >= 0 && selection_.HasTextBeside(spot.Page, spot.Point);
  });
  connect(&input, &PageInput::Pressed, this, &Selector::Start);
  connect(&input, &PageInput::Dragged, this, &Selector::Extend);
  connect(&input, &PageInput::DoubleClicked, this, &Selector::SelectWord);
  connect(&input, &PageInput::TripleClicked, this, &Selector::SelectRow);
}

void Selector::Start(const PageView::Spot& spot) {
  column_.Clear();
  selection_.Clear();
  pointedAt_ = spot;
  if (spot.Page >= 0) selection_.Start(spot.Page, spot.Point);
  NoticeChange();
}

void Selector::Extend(const PageView::Spot& spot) {
  pointedAt_ = spot;
  if (spot.Page >= 0) selection_.ExtendTo(spot.Page, spot.Point);
  NoticeChange();
}

void Selector::SelectWord(const PageView::Spot& spot) {
  column_.Clear();
  pointedAt_ = spot;
  if (spot.Page >= 0) selection_.SelectWord(spot.Page, spot.Point);
  NoticeChange();
}

void Selector::SelectRow(const PageView::Spot& spot) {
  pointedAt_ = spot;
  if (spot.Page >= 0) selection_.SelectRow(spot.Page, spot.Point);
  NoticeChange();
}

void Selector::SelectAll() {
  column_.Clear();
  pointedAt_ = {};
  selection_.SelectAll();
  NoticeChange();
}

void Selector::Select(const TextPosition& from, const TextPosition& to) {
  column_.Clear();
  pointedAt_ = {};
  selection_.Select(from, to);
  NoticeChange();
}

void Selector::Clear() {
  if (IsEmpty()) return;
  column_.Clear();
  selection_.Clear();
  NoticeChange();
}

void Selector::SelectColumn(const PageView::Spot& spot) {
  if (spot.Page < 0) return;
  pointedAt_ = spot;
  selection_.Start(spot.Page, spot.Point);
  column_.Select(spot.Page, spot.Point);
  NoticeChange();
}

void Selector::SelectColumn() {
  if (pointedAt_.Page >= 0) return SelectColumn(pointedAt_);
  const auto [page, point] = selection_.EndPlace();
  SelectColumn({page, point});
}

void Selector::Copy() const {
  if (!column_.IsEmpty()) {
    CopyColumn(column_.Rows());
  } else if (!selection_.IsEmpty()) {
    CopyTable(selection_.Rows());
  }
}

std::vector<Highlight> Selector::Marks(int page) const {
  std::vector<Highlight> marks;
  for (const QRectF& box : selection_.Boxes(page)) marks.push_back({box, SelectionTint});
  for (const QRectF& box : column_.Boxes(page)) marks.push_back({box, SelectionTint});
  return marks;
}

void Selector::NoticeChange() {
  view_.viewport()->update();
  emit Changed();
}

}  // namespace tarvis
