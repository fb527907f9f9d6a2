#include "preview/page_comparison.h"

#include <algorithm>
#include <vector>

namespace tarvis {
namespace {

constexpr int EvenGround = 3;  // levels of grey

// A grey picture by rows.
class Plane {
 public:
  Plane(const QImage& image, QSize size) : width_(size.width()), height_(size.height()) {
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    for (int y = 0; y < height_; ++y) {
      const uchar* row = grey.constScanLine(y);
      greys_.insert(greys_.end(), row, row + width_);
    }
  }

  int Width() const { return width_; }
  int Height() const { return height_; }
  uchar At(int x, int y) const { return greys_[Index(x, y)]; }

  // Each pixel becomes the `pick` of all that are up to `reach` away from it.
  template <typename Pick>
  Plane Spread(int reach, Pick pick) const {
    Plane rows = *this;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        uchar picked = At(x, y);
        for (int near = std::max(0, x - reach); near <= std::min(width_ - 1, x + reach); ++near)
          picked = pick(picked, At(near, y));
        rows.greys_[Index(x, y)] = picked;
      }
    }
    Plane all = rows;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        uchar& picked = all.greys_[Index(x, y)];
        for (int near = std::max(0, y - reach); near <= std::min(height_ - 1, y + reach); ++near)
          picked = pick(picked, rows.At(x, near));
      }
    }
    return all;
  }

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  int width_;
  int height_;
  std::vector<uchar> greys_;
};

// Adds the pixels of `a` that `b` doesn't show.
void AddMissing(const Plane& a, const Plane& b, int reach, PageDifference& found) {
  const Plane darkest = b.Spread(reach, [](uchar one, uchar other) { return std::min(one, other); });
  const Plane lightest = b.Spread(reach, [](uchar one, uchar other) { return std::max(one, other); });
  for (int y = 0; y < a.Height(); ++y) {
    for (int x = 0; x < a.Width(); ++x) {
      const int low = darkest.At(x, y);
      const int high = lightest.At(x, y);
      const int room = EvenGround + (high - low) / 2;
      if (a.At(x, y) >= low - room && a.At(x, y) <= high + room) continue;
      ++found.Pixels;
      found.Where |= QRect(x, y, 1, 1);
    }
  }
}

}  // namespace

PageDifference Compare(const QImage& a, const QImage& b, int reach) {
  const QSize size = a.size().boundedTo(b.size());
  const Plane first(a, size);
  const Plane second(b, size);
  PageDifference found;
  AddMissing(first, second, reach, found);
  AddMissing(second, first, reach, found);
  return found;
}

}  // namespace tarvis
