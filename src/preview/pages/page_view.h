// The scrolled view of a document's pages: layout, pictures, zoom and movement. It knows nothing of toolbars.
#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <memory>
#include <optional>

#include "preview/pages/page_layout.h"
#include "preview/pages/page_pictures.h"

namespace tarvis {

// A marked rectangle of a page, in twips.
struct Highlight {
  QRectF Box;
  QColor Tint;
};

class PageView : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit PageView(std::shared_ptr<const Document> document, QWidget* parent = nullptr);

  const PageLayout& Layout() const { return layout_; }
  PagePictures& Pictures() { return pictures_; }
  int CurrentPage() const;
  // What the reader most likely looks at: a third below the top edge.
  PagePlace ReadPlace() const;
  // What stands at the top edge of the view.
  PagePlace CurrentPlace() const;
  double Zoom() const { return layout_.Zoom(); }

  void GoTo(const PagePlace& place);
  // Scrolls as little as needed to show `box` (twips) of a page.
  void Reveal(int page, const QRectF& box);
  void SetContinuous(bool continuous);
  void SetZoomMode(ZoomMode mode);
  // Keeps the point of the document that stands at `anchor` (view coordinates; the view's middle if none) in
  // place.
  void SetZoom(double factor, std::optional<QPointF> anchor = {});
  // The next larger or smaller step.
  void ZoomStep(int direction, std::optional<QPointF> anchor = {});

  // One line, one view or whole pages on; `direction` is 1 or -1.
  void ScrollLines(int direction);
  void ScrollView(int direction);
  void ScrollPages(int count);
  void ScrollAcross(int direction);
  void GoToStart();
  void GoToEnd();

  // Asked for each page that is painted.
  void SetHighlights(std::function<std::vector<Highlight>(int page)> highlights);

  // The place of the document at `point` of the view, nearest page first.
  struct Spot {
    int Page = -1;
    QPointF Point;  // twips
  };
  Spot SpotAt(QPointF point) const;

 signals:
  void PlaceChanged();
  void ZoomChanged();
  void Pressed(const PageView::Spot& spot);
  void Dragged(const PageView::Spot& spot);
  void DoubleClicked(const PageView::Spot& spot);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool viewportEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QPointF Offset() const;
  void UpdateScrollBars();
  void ChangeLayout(const std::function<void()>& change, QPointF anchor);
  bool TurnSinglePage(int direction);
  void ZoomByWheel(const QWheelEvent& event);
  bool TurnByWheel(int angle);
  bool Pinch(QEvent& event);
  void Changed();
  int PageDeviceWidth() const;
  std::vector<ShownPart> ShownParts() const;
  void WantShown();
  void PaintPageAt(QPainter& painter, int page, const QRect& exposed);
  void PaintPictures(QPainter& painter, int page, const QRectF& place, const ShownPart& part);
  void PaintStrip(QPainter& painter, const Strip& strip, const QRectF& place);
  void DragBy(QPoint distance);

  std::shared_ptr<const Document> document_;
  PageLayout layout_;
  PagePictures pictures_;
  std::function<std::vector<Highlight>(int)> highlights_;
  std::optional<QPoint> handAt_;
  bool selecting_ = false;
  // What fine wheels and touchpads have turned, in eighths of a degree: towards the next zoom step, and past
  // the end of a single page towards the next one.
  int zoomAngle_ = 0;
  int turnAngle_ = 0;
};

}  // namespace tarvis
