#include "pictures/metafile/list/list_inks.h"

#include <QImage>

namespace tarvis {
namespace {

constexpr std::size_t BytesOfInk = 256;

}  // namespace

std::int32_t ListInks::Add(const ListPen* pen, PictureBudget& budget) {
  if (pen == nullptr) return -1;
  if (pens_.empty() || !(pens_.back() == *pen)) {
    budget.TakeKeptBytes(BytesOfInk);
    pens_.push_back(*pen);
  }
  return static_cast<std::int32_t>(pens_.size()) - 1;
}

std::int32_t ListInks::Add(const ListBrush* brush, PictureBudget& budget) {
  if (brush == nullptr) return -1;
  if (brushes_.empty() || !(brushes_.back() == *brush)) {
    budget.TakeKeptBytes(BytesOfInk + static_cast<std::size_t>(brush->Brush.textureImage().sizeInBytes()));
    brushes_.push_back(*brush);
  }
  return static_cast<std::int32_t>(brushes_.size()) - 1;
}

}  // namespace tarvis
