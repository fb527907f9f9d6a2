// The places of pages in the view, in logical pixels: plain arithmetic, no widget.
//
//   continuous                    single
//   ┌──────────────┐              ┌──────────────┐
//   │    margin    │              │   the page   │  centred if smaller than the view
//   │  ┌────────┐  │              └──────────────┘
//   │  │ page 0 │  │
//   │  └────────┘  │
//   │     gap      │
//   │  ┌────────┐  │
//   │  │ page 1 │  │
//   └──────────────┘
//
// Each row may have several pages side by side. Then a single-page view shows one row of them.
#pragma once

#include <QRectF>
#include <QSize>

#include "report/engine/document.h"

namespace tarvis {

enum class ZoomMode { Factor, FitWidth, FitPage };

// How many pages are side by side. With as many as fit, a single page decides what FitWidth means.
enum class Columns { One, Two, AsManyAsFit };

// Twips to a logical pixel at 100 %.
inline constexpr double TwipsPerScreenPixel = TwipsPerPixel;

// A place to go to: a page and a height on it, in twips.
struct PagePlace {
  int Page = 0;
  double Top = 0;
  bool operator==(const PagePlace&) const = default;
};

class PageLayout {
 public:
  static constexpr double Margin = 12;  // around pages and between them
  static constexpr double LeastZoom = 0.1;
  static constexpr double GreatestZoom = 8;

  // `paper` is in twips.
  void SetPages(int count, QSizeF paper);
  void SetViewport(QSizeF size);
  void SetContinuous(bool continuous) { continuous_ = continuous; }
  void SetColumns(Columns columns);
  // The page that a single-page view shows, and whose column the places of rows get.
  void SetSinglePage(int page) { single_ = page; }
  // The factor counts for ZoomMode::Factor only.
  void SetZoom(ZoomMode mode, double factor);

  int PageCount() const { return count_; }
  bool Continuous() const { return continuous_; }
  Columns Side() const { return columns_; }
  int ColumnCount() const;
  int SinglePage() const { return single_; }
  ZoomMode Mode() const { return mode_; }
  double Zoom() const { return zoom_; }
  double PixelsPerTwip() const { return zoom_ / TwipsPerScreenPixel; }
  QSizeF PageSize() const { return {width_ * PixelsPerTwip(), height_ * PixelsPerTwip()}; }

  QSizeF ContentSize() const;
  // In content coordinates.
  QRectF PageRect(int page) const;
  // The nearest page to a point of the content; -1 without pages.
  int PageAt(QPointF point) const;
  // Pages of which something shows between two heights of the content; first > last if none.
  struct Range {
    int First = 0;
    int Last = -1;
  };
  Range PagesBetween(double top, double bottom) const;
  // Height of `place` in the content.
  double YOf(const PagePlace& place) const;
  // The place at height `y` of the content, in the column of the page that was set last.
  PagePlace PlaceAt(double y) const;

 private:
  void Update();
  int RowAt(double y) const;
  int RowCount() const;
  // In the row, the page of the column of the page that was set last.
  int PageOfRow(int row) const;

  int count_ = 0;
  int single_ = 0;
  double width_ = 1;
  double height_ = 1;
  QSizeF viewport_;
  bool continuous_ = true;
  Columns columns_ = Columns::One;
  ZoomMode mode_ = ZoomMode::FitWidth;
  double factor_ = 1;
  double zoom_ = 1;
};

}  // namespace tarvis
