#include "preview/pages/thumbnails.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "preview/pages/accessible_thumbnails.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

constexpr int Gap = 10;  // logical pixels
constexpr int GreatestWidth = 140;
constexpr std::int64_t KeptThumbnailBytes = std::int64_t{8} * 1024 * 1024;

}  // namespace

Thumbnails::Thumbnails(std::shared_ptr<const Document> document, QWidget* parent)
    : QAbstractScrollArea(parent), document_(std::move(document)), pictures_(document_, KeptThumbnailBytes) {
  setObjectName(QStringLiteral("thumbnails"));
  OfferAccessibleThumbnails();
  setAccessibleName(tr("Thumbnails"));
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::StrongFocus);
  connect(&pictures_, &PagePictures::StripReady, this,
          [this](const Strip& strip) { viewport()->update(PlaceOf(strip.Page)); });
}

QSize Thumbnails::PictureSize() const {
  const int width = std::clamp(viewport()->width() - 4 * Gap, 16, GreatestWidth);
  return {width, PagePixelHeight(*document_, width)};
}

int Thumbnails::RowHeight() const {
  return PictureSize().height() + fontMetrics().height() + 2 * Gap;
}

QRect Thumbnails::PlaceOf(int page) const {
  const QSize size = PictureSize();
  const int top = page * RowHeight() + Gap - verticalScrollBar()->value();
  return {QPoint((viewport()->width() - size.width()) / 2, top), size};
}

Strip Thumbnails::StripOf(int page) const {
  return {page, 0, NearestPixel(PictureSize().width() * devicePixelRatioF())};
}

void Thumbnails::Update() {
  verticalScrollBar()->setRange(0, std::max(0, Count() * RowHeight() - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(RowHeight() / 3);
  WantShown();
}

void Thumbnails::WantShown() {
  if (!isVisible()) return;
  const int first = verticalScrollBar()->value() / RowHeight();
  const int last = std::min(Count() - 1, (verticalScrollBar()->value() + viewport()->height()) / RowHeight());
  std::vector<Strip> wanted;
  for (int page = first; page <= last; ++page) wanted.push_back(StripOf(page));
  pictures_.Want(std::move(wanted));
}

void Thumbnails::SetCurrent(int page) {
  if (page == current_ || page < 0) return;
  current_ = page;
  const int top = page * RowHeight();
  QScrollBar* bar = verticalScrollBar();
  if (top < bar->value()) bar->setValue(top);
  if (top + RowHeight() > bar->value() + viewport()->height())
    bar->setValue(top + RowHeight() - viewport()->height());
  viewport()->update();
  if (!hasFocus()) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(page);
  QAccessible::updateAccessibility(&event);
}

void Thumbnails::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(event->rect(), palette().color(QPalette::Base));
  const int first = verticalScrollBar()->value() / RowHeight();
  for (int page = first; page < Count() && PlaceOf(page).top() <= event->rect().bottom(); ++page) {
    const QRect place = PlaceOf(page);
    const bool marked = page == current_;
    const QColor edge = palette().color(marked ? QPalette::Highlight : QPalette::Mid);
    const int width = marked ? 3 : 1;
    painter.fillRect(place.adjusted(-width, -width, width, width), edge);
    painter.fillRect(place, Qt::white);
    if (const QImage* picture = pictures_.Find(StripOf(page))) painter.drawImage(place, *picture);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRect(0, place.bottom() + 4, viewport()->width(), fontMetrics().height()),
                     Qt::AlignCenter, QString::number(page + 1));
  }
}

void Thumbnails::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  Update();
}

void Thumbnails::showEvent(QShowEvent* event) {
  QAbstractScrollArea::showEvent(event);
  Update();
}

void Thumbnails::scrollContentsBy(int dx, int dy) {
  QAbstractScrollArea::scrollContentsBy(dx, dy);
  WantShown();
  viewport()->update();
}

void Thumbnails::mousePressEvent(QMouseEvent* event) {
  const int page = (static_cast<int>(event->position().y()) + verticalScrollBar()->value()) / RowHeight();
  if (event->button() == Qt::LeftButton && page >= 0 && page < Count()) emit PageChosen(page);
}

void Thumbnails::keyPressEvent(QKeyEvent* event) {
  const int last = Count() - 1;
  int page = current_;
  if (event->key() == Qt::Key_Up) page = std::max(0, current_ - 1);
  if (event->key() == Qt::Key_Down) page = std::min(last, current_ + 1);
  if (event->key() == Qt::Key_Home) page = 0;
  if (event->key() == Qt::Key_End) page = last;
  if (page == current_ || page < 0) return QAbstractScrollArea::keyPressEvent(event);
  emit PageChosen(page);
}

}  // namespace tarvis
