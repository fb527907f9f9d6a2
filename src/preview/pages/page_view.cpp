#include "preview/pages/page_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "preview/pages/strip_painter.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

constexpr std::int64_t KeptPageBytes = 44LL * 1024 * 1024;

// The width of a page in device pixels, of which `ratio` make a logical one.
int DeviceWidth(const PageLayout& layout, double ratio) {
  return std::max(1, NearestPixel(layout.PageSize().width() * ratio));
}

void PaintShadow(QPainter& painter, const QRectF& page, const QColor& edge) {
  for (int step = 4; step >= 1; --step) {
    painter.fillRect(page.adjusted(step, step, step, step), QColor(0, 0, 0, 60 / step));
  }
  painter.fillRect(page.adjusted(-1, -1, 1, 1), edge);
}

// Tints multiply, so that the text below stays black.
void PaintHighlights(QPainter& painter, const std::vector<Highlight>& marks, QPointF corner, double scale) {
  painter.setCompositionMode(QPainter::CompositionMode_Multiply);
  for (const Highlight& mark : marks)
    painter.fillRect(QRectF(corner + mark.Box.topLeft() * scale, mark.Box.size() * scale), mark.Tint);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

}  // namespace

PageView::PageView(std::shared_ptr<const Document> document, QWidget* parent)
    : QAbstractScrollArea(parent), document_(std::move(document)), pictures_(document_, KeptPageBytes) {
  setObjectName(QStringLiteral("pageView"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  layout_.SetPages(static_cast<int>(document_->Pages.size()), PaperSizeOf(*document_));
  connect(&pictures_, &PagePictures::StripReady, this,
          [this](const Strip& strip) { viewport()->update(PlaceOf(strip)); });
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  ChangeLayout([&] { layout_.SetViewport(viewport()->size()); }, QPointF(0, PageLayout::Margin));
}

void PageView::scrollContentsBy(int dx, int dy) {
  viewport()->scroll(dx, dy);
  WantShown();
  emit PlaceChanged();
}

QPointF PageView::Offset() const {
  return QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

int PageView::CurrentPage() const {
  return ReadPlace().Page;
}

PagePlace PageView::ReadPlace() const {
  return layout_.PlaceAt(Offset().y() + viewport()->height() / 3.0);
}

PagePlace PageView::CurrentPlace() const {
  return layout_.PlaceAt(Offset().y() + PageLayout::Margin);
}

void PageView::UpdateScrollBars() {
  const QSizeF content = layout_.ContentSize();
  const auto set = [](QScrollBar* bar, double length, int view) {
    bar->setRange(0, std::max(0, PixelAfter(length) - view));
    bar->setPageStep(view);
    bar->setSingleStep(48);
  };
  set(horizontalScrollBar(), content.width(), viewport()->width());
  set(verticalScrollBar(), content.height(), viewport()->height());
}

void PageView::ChangeLayout(const std::function<void()>& change, QPointF anchor) {
  const Spot spot = SpotAt(anchor);
  const double zoomBefore = layout_.Zoom();
  change();
  UpdateScrollBars();
  if (spot.Page >= 0) {
    const QPointF now = layout_.PageRect(spot.Page).topLeft() + spot.Point * layout_.PixelsPerTwip();
    horizontalScrollBar()->setValue(NearestPixel(now.x() - anchor.x()));
    verticalScrollBar()->setValue(NearestPixel(now.y() - anchor.y()));
  }
  if (layout_.Zoom() != zoomBefore) emit ZoomChanged();
  Changed();
}

void PageView::Changed() {
  WantShown();
  viewport()->update();
  emit PlaceChanged();
}

void PageView::GoTo(const PagePlace& place) {
  if (layout_.PageCount() == 0) return;
  const int page = std::clamp(place.Page, 0, layout_.PageCount() - 1);
  layout_.SetSinglePage(page);
  UpdateScrollBars();
  verticalScrollBar()->setValue(NearestPixel(layout_.YOf({page, place.Top}) - PageLayout::Margin));
  Changed();
}

void PageView::Reveal(int page, const QRectF& box) {
  layout_.SetSinglePage(page);
  UpdateScrollBars();
  const double scale = layout_.PixelsPerTwip();
  const QRectF place(layout_.PageRect(page).topLeft() + box.topLeft() * scale, box.size() * scale);
  const auto show = [](QScrollBar* bar, double first, double last, int view) {
    const double room = std::min(48.0, view / 4.0);
    if (first - room < bar->value() || last + room > bar->value() + view) {
      bar->setValue(NearestPixel((first + last - view) / 2));
    }
  };
  show(horizontalScrollBar(), place.left(), place.right(), viewport()->width());
  show(verticalScrollBar(), place.top(), place.bottom(), viewport()->height());
  Changed();
}

void PageView::SetContinuous(bool continuous) {
  const PagePlace place = CurrentPlace();
  layout_.SetContinuous(continuous);
  GoTo(place);
}

void PageView::SetColumns(Columns columns) {
  const PagePlace place = CurrentPlace();
  layout_.SetColumns(columns);
  GoTo(place);
  emit ZoomChanged();
}

void PageView::SetZoomMode(ZoomMode mode) {
  ChangeLayout([&] { layout_.SetZoom(mode, layout_.Zoom()); },
               QPointF(viewport()->width() / 2.0, PageLayout::Margin));
  // The mode may change although the factor stays.
  emit ZoomChanged();
}

void PageView::SetZoom(double factor, std::optional<QPointF> anchor) {
  ChangeLayout([&] { layout_.SetZoom(ZoomMode::Factor, factor); },
               anchor.value_or(QPointF(viewport()->width() / 2.0, viewport()->height() / 2.0)));
}

void PageView::SetHighlights(std::function<std::vector<Highlight>(int)> highlights) {
  highlights_ = std::move(highlights);
  viewport()->update();
}

PageView::Spot PageView::SpotAt(QPointF point) const {
  const int page = layout_.PageAt(point + Offset());
  if (page < 0) return {};
  return {page, (point + Offset() - layout_.PageRect(page).topLeft()) / layout_.PixelsPerTwip()};
}

void PageView::WantShown() {
  const double top = Offset().y();
  const double bottom = top + viewport()->height();
  const double ratio = devicePixelRatioF();
  const PageLayout::Range range = layout_.PagesBetween(top, bottom);
  std::vector<ShownPart> parts;
  for (int page = range.First; page <= range.Last; ++page) {
    const double pageTop = layout_.PageRect(page).top();
    parts.push_back({page, PixelBefore((top - pageTop) * ratio), PixelAfter((bottom - pageTop) * ratio)});
  }
  const int width = DeviceWidth(layout_, ratio);
  pictures_.Want(WantedStrips(parts, width, PagePixelHeight(*document_, width), layout_.PageCount()));
}

QRect PageView::PlaceOf(const Strip& strip) const {
  const QRectF page = layout_.PageRect(strip.Page).translated(-Offset());
  const int pageHeight = PagePixelHeight(*document_, strip.Width);
  const double row = page.height() / pageHeight;
  const int height = CutIntoStrips(strip.Width, pageHeight).Height;
  const QRectF place(page.left(), page.top() + strip.Index * height * row, page.width(), height * row);
  return (place & page).toAlignedRect();
}

void PageView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QColor window = palette().color(QPalette::Window);
  painter.fillRect(event->rect(), window.lightness() < 128 ? window.darker(130) : window.darker(118));
  const double ratio = devicePixelRatioF();
  StripPainter strips(painter, *document_, pictures_, DeviceWidth(layout_, ratio), ratio);
  const double top = Offset().y();
  const PageLayout::Range range =
      layout_.PagesBetween(top + event->rect().top(), top + event->rect().bottom() + 1);
  for (int page = range.First; page <= range.Last; ++page) {
    const QRectF place = layout_.PageRect(page).translated(-Offset());
    PaintShadow(painter, place, palette().color(QPalette::Shadow));
    strips.Paint(page, place, event->rect());
    if (highlights_) PaintHighlights(painter, highlights_(page), place.topLeft(), layout_.PixelsPerTwip());
  }
}

}  // namespace tarvis
