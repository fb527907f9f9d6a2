// Whether two pictures of a page show the same.
#pragma once

#include <QImage>
#include <ostream>

namespace tarvis {

// What one of two pictures shows and the other doesn't.
struct PageDifference {
  int Pixels = 0;
  QRect Where;  // around all of them
};

// Renderers smooth edges differently and put them on whole pixels of their own choice. So a pixel counts as
// shown if the other picture holds its grey no more than `reach` pixels away; half the contrast that is found
// there is allowed for smoothing, but on even ground no more than three levels of 256. Both pictures are
// asked for what the other one shows.
PageDifference Compare(const QImage& a, const QImage& b, int reach);

inline void PrintTo(const PageDifference& difference, std::ostream* out) {
  const QRect& where = difference.Where;
  *out << difference.Pixels << " pixels at " << where.x() << "," << where.y() << " " << where.width() << "x"
       << where.height();
}

}  // namespace tarvis
