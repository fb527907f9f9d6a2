// The path of a device context: while it is open, shapes are collected instead of drawn. All in device units.
#pragma once

#include <QPainterPath>

#include "pictures/metafile/list/draw_list.h"

namespace tarvis {

class PathBracket {
 public:
  bool IsOpen() const { return isOpen_; }
  void Begin();
  void End() { isOpen_ = false; }
  void Abort();
  // Ends it and hands the path over, which is empty then.
  QPainterPath Take(Qt::FillRule rule);

  void MoveTo(QPointF point) { path_.moveTo(point); }
  // Starts a figure unless the open one ends at `point`.
  void Join(QPointF point);
  void LineTo(QPointF point) { path_.lineTo(point); }
  // Adds the curves of `curves` to the open figure, so that the figure still closes to its own start.
  void Continue(const QPainterPath& curves);
  // Adds figures of their own.
  void Add(const QPainterPath& figures) { path_.addPath(figures); }
  void CloseFigure();
  // Becomes the outline that `pen` draws along it; SkipRecord if it is too long for that.
  void Widen(ListPen pen, PictureBudget& budget);

 private:
  QPainterPath path_;
  bool isOpen_ = false;
};

}  // namespace tarvis
