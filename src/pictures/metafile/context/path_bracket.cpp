#include "pictures/metafile/context/path_bracket.h"

#include <algorithm>
#include <utility>

#include "pictures/metafile/context/dc_state.h"

namespace tarvis {

void PathBracket::Begin() {
  path_ = QPainterPath();
  isOpen_ = true;
}

void PathBracket::Abort() {
  path_ = QPainterPath();
  isOpen_ = false;
}

QPainterPath PathBracket::Take(Qt::FillRule rule) {
  isOpen_ = false;
  QPainterPath path = std::exchange(path_, QPainterPath());
  path.setFillRule(rule);
  return path;
}

void PathBracket::Join(QPointF point) {
  if (path_.elementCount() == 0 || path_.currentPosition() != point) path_.moveTo(point);
}

void PathBracket::Continue(const QPainterPath& curves) {
  Join(curves.elementAt(0));
  for (int i = 1; i + 2 < curves.elementCount(); i += 3)
    path_.cubicTo(curves.elementAt(i), curves.elementAt(i + 1), curves.elementAt(i + 2));
}

void PathBracket::CloseFigure() {
  if (!isOpen_ || path_.elementCount() == 0) return;
  path_.closeSubpath();
}

void PathBracket::Widen(ListPen pen, PictureBudget& budget) {
  constexpr int mostElements = 20000;
  constexpr std::size_t costOfElement = 32;  // a widened line has many more points
  if (path_.elementCount() > mostElements) throw SkipRecord();
  budget.TakeElements(static_cast<std::size_t>(path_.elementCount()) * costOfElement);
  pen.Pen.setWidthF(std::clamp(pen.Width, 1.0, 30000.0));
  path_ = QPainterPathStroker(pen.Pen).createStroke(path_);
}

}  // namespace tarvis
