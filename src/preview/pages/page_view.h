// The scrolled view of a document's pages: layout, pictures, zoom and place. PageInput
// handles the user's input.
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
  // The place at the top edge of the view.
  PagePlace CurrentPlace() const;

  void GoTo(const PagePlace& place);
  // Scrolls as little as needed to show `box` (twips) of a page.
  void Reveal(int page, const QRectF& box);
  void SetContinuous(bool continuous);
  void SetColumns(Columns columns);
  void SetZoomMode(ZoomMode mode);
  // Keeps the point of the document that is at `anchor` in its place (view coordinates; the middle of the
  // view if there is none).
  void SetZoom(double factor, std::optional<QPointF> anchor = {});

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

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  QPointF Offset() const;
  void UpdateScrollBars();
  void ChangeLayout(const std::function<void()>& change, QPointF anchor);
  void Changed();
  void WantShown();
  // Where a strip is in the view.
  QRect PlaceOf(const Strip& strip) const;

  std::shared_ptr<const Document> document_;
  PageLayout layout_;
  PagePictures pictures_;
  std::function<std::vector<Highlight>(int)> highlights_;
};

}  // namespace tarvis
