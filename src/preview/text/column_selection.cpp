#include "preview/text/column_selection.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "preview/paint/page_items.h"
#include "preview/paint/toolkit_geometry.h"
#include "preview/text/text_geometry.h"

namespace tarvis {
namespace {

bool IsFrame(const Item& item) {
  return item.Kind == ItemKind::Box && item.Weight > 0;
}

// Cells of one column have one control and one place; only their rows differ.
bool IsInColumn(const Item& frame, const Item& model) {
  constexpr float Tolerance = 1;  // twips
  return IsFrame(frame) && frame.Control == model.Control &&
         std::abs(frame.Box.Left - model.Box.Left) < Tolerance &&
         std::abs(frame.Box.Width - model.Box.Width) < Tolerance;
}

// From where to where a part of the document goes: page and height on it.
struct Stretch {
  std::pair<int, double> From{0, 0};
  std::pair<int, double> To{std::numeric_limits<int>::max(), 0};
};

Stretch PartAround(const Document& document, int page, double top) {
  Stretch part;
  for (const ContentsEntry& entry : document.Contents) {
    const std::pair<int, double> place(entry.Page, entry.Top);
    if (place <= std::pair(page, top)) {
      part.From = place;
    } else {
      part.To = std::min(part.To, place);
    }
  }
  return part;
}

}  // namespace

// Of frames around one another, the smallest is the cell.
const Item* ColumnSelection::FrameAt(int page, QPointF point) const {
  const Item* best = nullptr;
  const auto area = [](const Item& item) { return item.Box.Width * item.Box.Height; };
  for (const Item& item : ItemsOf(document_, static_cast<std::size_t>(page))) {
    if (!IsFrame(item) || !ToRectF(item.Box).contains(point)) continue;
    if (best == nullptr || area(item) < area(*best)) best = &item;
  }
  return best;
}

void ColumnSelection::Select(int page, QPointF point) {
  cells_.clear();
  const Item* model = FrameAt(page, point);
  if (model == nullptr) return;
  const Stretch part = PartAround(document_, page, model->Box.Top);
  const int last = std::min(part.To.first, static_cast<int>(document_.Pages.size()) - 1);
  for (int each = part.From.first; each <= last; ++each) {
    AddPage(each, *model, each == part.From.first ? part.From.second : 0,
            each == part.To.first ? part.To.second : document_.Setup.Height);
  }
}

void ColumnSelection::AddPage(int page, const Item& model, double from, double to) {
  for (const Item& item : ItemsOf(document_, static_cast<std::size_t>(page))) {
    const double top = item.Box.Top;
    if (IsInColumn(item, model) && top >= from && top < to) cells_.push_back({page, &item});
  }
}

// The text of a cell may come from another control than its frame.
QString ColumnSelection::TextIn(const Cell& cell) const {
  const QRectF frame = ToRectF(cell.Frame->Box);
  QString text;
  for (const Item& item : ItemsOf(document_, static_cast<std::size_t>(cell.Page))) {
    const bool isRead = item.Kind == ItemKind::Text || item.Kind == ItemKind::Tick;
    if (!isRead || item.Band != cell.Frame->Band || !frame.contains(ToRectF(item.Box).center())) continue;
    if (!text.isEmpty()) text += QLatin1Char(' ');
    const auto index = static_cast<std::uint32_t>(&item - document_.Items.data());
    text += StringOf(document_, ReadPiece{.Item = index});
  }
  return text;
}

std::vector<QRectF> ColumnSelection::Boxes(int page) const {
  std::vector<QRectF> boxes;
  for (const Cell& cell : std::ranges::equal_range(cells_, page, {}, &Cell::Page))
    boxes.push_back(ToRectF(cell.Frame->Box));
  return boxes;
}

CopiedRows ColumnSelection::Rows() const {
  CopiedRows rows;
  for (const Cell& cell : cells_) {
    const QString text = TextIn(cell);
    // The rest of a cell that the end of the page before has cut.
    if (cell.Frame->OpenTop && !rows.empty()) {
      rows.back().Cells.back() = (rows.back().Cells.back() + QLatin1Char(' ') + text).trimmed();
    } else {
      rows.push_back({{text}});
    }
  }
  return rows;
}

}  // namespace tarvis
