#include "preview/pages/page_layout.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace tarvis {

void PageLayout::SetPages(int count, double width, double height) {
  count_ = count;
  width_ = std::max(width, 1.0);
  height_ = std::max(height, 1.0);
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

void PageLayout::Update() {
  const double acrossZoom = (viewport_.width() - 2 * Margin) * TwipsPerScreenPixel / width_;
  const double downZoom = (viewport_.height() - 2 * Margin) * TwipsPerScreenPixel / height_;
  if (mode_ == ZoomMode::Factor) zoom_ = factor_;
  if (mode_ == ZoomMode::FitWidth) zoom_ = std::clamp(acrossZoom, LeastZoom, GreatestZoom);
  if (mode_ == ZoomMode::FitPage) zoom_ = std::clamp(std::min(acrossZoom, downZoom), LeastZoom, GreatestZoom);
}

QSizeF PageLayout::ContentSize() const {
  if (count_ == 0) return viewport_;
  const int rows = continuous_ ? count_ : 1;
  return {std::max(viewport_.width(), PageSize().width() + 2 * Margin),
          std::max(viewport_.height(), rows * (PageSize().height() + Margin) + Margin)};
}

QRectF PageLayout::PageRect(int page) const {
  assert(page >= 0);
  const QSizeF size = PageSize();
  const double left = std::max(Margin, std::floor((ContentSize().width() - size.width()) / 2));
  const double rows = continuous_ ? count_ : 1;
  const double used = rows * (size.height() + Margin) + Margin;
  const double above = Margin + std::max(0.0, std::floor((viewport_.height() - used) / 2));
  return {QPointF(left, above + (continuous_ ? page * (size.height() + Margin) : 0)), size};
}

int PageLayout::PageAt(double y) const {
  if (count_ == 0) return -1;
  if (!continuous_) return single_;
  const double first = PageRect(0).top() - Margin / 2;
  return std::clamp(static_cast<int>(std::floor((y - first) / (PageSize().height() + Margin))), 0,
                    count_ - 1);
}

PageLayout::Range PageLayout::PagesBetween(double top, double bottom) const {
  if (count_ == 0) return {};
  Range range{PageAt(top), PageAt(bottom)};
  if (range.First < range.Last && PageRect(range.First).bottom() <= top) ++range.First;
  if (range.First < range.Last && PageRect(range.Last).top() >= bottom) --range.Last;
  return range;
}

double PageLayout::YOf(const PagePlace& place) const {
  return PageRect(place.Page).top() + place.Top * PixelsPerTwip();
}

PagePlace PageLayout::PlaceAt(double y) const {
  const int page = PageAt(y);
  if (page < 0) return {};
  return {page, (y - PageRect(page).top()) / PixelsPerTwip()};
}

}  // namespace tarvis
