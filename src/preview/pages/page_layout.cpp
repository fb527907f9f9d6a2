#include "preview/pages/page_layout.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace tarvis {

void PageLayout::SetPages(int count, QSizeF paper) {
  count_ = count;
  width_ = std::max(paper.width(), 1.0);
  height_ = std::max(paper.height(), 1.0);
  single_ = std::clamp(single_, 0, std::max(0, count - 1));
  Update();
}

void PageLayout::SetViewport(QSizeF size) {
  viewport_ = size;
  Update();
}

void PageLayout::SetZoom(ZoomMode mode, double factor) {
  mode_ = mode;
  factor_ = std::clamp(factor, LeastZoom, GreatestZoom);
  Update();
}

void PageLayout::SetColumns(Columns columns) {
  columns_ = columns;
  Update();
}

void PageLayout::Update() {
  const int across = columns_ == Columns::Two ? 2 : 1;
  const double acrossZoom =
      (viewport_.width() - (across + 1) * Margin) * TwipsPerScreenPixel / (across * width_);
  const double downZoom = (viewport_.height() - 2 * Margin) * TwipsPerScreenPixel / height_;
  if (mode_ == ZoomMode::Factor) zoom_ = factor_;
  if (mode_ == ZoomMode::FitWidth) zoom_ = std::clamp(acrossZoom, LeastZoom, GreatestZoom);
  if (mode_ == ZoomMode::FitPage) zoom_ = std::clamp(std::min(acrossZoom, downZoom), LeastZoom, GreatestZoom);
}

int PageLayout::ColumnCount() const {
  if (columns_ == Columns::One) return 1;
  if (columns_ == Columns::Two) return 2;
  const double fitting = std::floor((viewport_.width() - Margin) / (PageSize().width() + Margin));
  return std::clamp(static_cast<int>(fitting), 1, std::max(1, count_));
}

int PageLayout::RowCount() const {
  return continuous_ ? (count_ + ColumnCount() - 1) / ColumnCount() : 1;
}

QSizeF PageLayout::ContentSize() const {
  if (count_ == 0) return viewport_;
  const QSizeF step = PageSize() + QSizeF(Margin, Margin);
  return {std::max(viewport_.width(), ColumnCount() * step.width() + Margin),
          std::max(viewport_.height(), RowCount() * step.height() + Margin)};
}

QRectF PageLayout::PageRect(int page) const {
  assert(page >= 0);
  const QSizeF size = PageSize();
  const QSizeF step = size + QSizeF(Margin, Margin);
  const int columns = ColumnCount();
  const double used = RowCount() * step.height() + Margin;
  const double left =
      std::max(Margin, std::floor((ContentSize().width() - columns * step.width() + Margin) / 2));
  const double above = Margin + std::max(0.0, std::floor((viewport_.height() - used) / 2));
  const int row = continuous_ ? page / columns : 0;
  return {QPointF(left + page % columns * step.width(), above + row * step.height()), size};
}

int PageLayout::RowAt(double y) const {
  if (!continuous_) return single_ / ColumnCount();
  const double first = PageRect(0).top() - Margin / 2;
  return std::clamp(static_cast<int>(std::floor((y - first) / (PageSize().height() + Margin))), 0,
                    RowCount() - 1);
}

int PageLayout::PageOfRow(int row) const {
  const int columns = ColumnCount();
  return std::min(row * columns + single_ % columns, count_ - 1);
}

int PageLayout::PageAt(QPointF point) const {
  if (count_ == 0) return -1;
  const int columns = ColumnCount();
  const double first = PageRect(0).left() - Margin / 2;
  const int column = std::clamp(
      static_cast<int>(std::floor((point.x() - first) / (PageSize().width() + Margin))), 0, columns - 1);
  return std::min(RowAt(point.y()) * columns + column, count_ - 1);
}

PageLayout::Range PageLayout::PagesBetween(double top, double bottom) const {
  if (count_ == 0) return {};
  const int columns = ColumnCount();
  int first = RowAt(top);
  int last = RowAt(bottom);
  if (first < last && PageRect(first * columns).bottom() <= top) ++first;
  if (first < last && PageRect(last * columns).top() >= bottom) --last;
  return {first * columns, std::min(last * columns + columns, count_) - 1};
}

double PageLayout::YOf(const PagePlace& place) const {
  return PageRect(place.Page).top() + place.Top * PixelsPerTwip();
}

PagePlace PageLayout::PlaceAt(double y) const {
  if (count_ == 0) return {};
  const int page = PageOfRow(RowAt(y));
  return {page, (y - PageRect(page).top()) / PixelsPerTwip()};
}

}  // namespace tarvis
