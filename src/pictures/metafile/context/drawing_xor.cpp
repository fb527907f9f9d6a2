#include <algorithm>

#include "pictures/metafile/context/drawing.h"
#include "pictures/metafile/context/raster_ops.h"

namespace tarvis {
namespace {

constexpr std::size_t MostFills = 4096;
constexpr int MostElements = 2000;

}  // namespace

void Drawing::FollowXorFill(const QPainterPath& device) {
  const std::size_t commands = list_.Commands().size();
  if (!xor_.HasMask) {
    if (xor_.Count == 0) xor_.First = commands - 1;
    ++xor_.Count;
    return;
  }
  if (xor_.Count > MostFills || device.elementCount() > MostElements) {
    xor_ = {};
    return;
  }
  xor_.Again.emplace_back(device, State().Brush->Color);
  if (xor_.Again.size() < xor_.Count) return;
  DrawMaskedFills();
  xor_ = {};
}

void Drawing::FollowCopyFill(const QPainterPath& device) {
  const bool masks = xor_.Count > 0 && !xor_.HasMask && State().Brush->Is == MetaBrush::Kind::Solid &&
                     State().Brush->Color == QColor(Qt::black) && device.elementCount() <= MostElements;
  if (!masks) {
    xor_ = {};
    return;
  }
  xor_.HasMask = true;
  xor_.Mask = device;
}

// Black XORed with a colour is that colour, and outside the mask the second time takes back the first.
void Drawing::DrawMaskedFills() {
  const std::span<const ListCommand> all(list_.Commands());
  const std::span<const ListCommand> group = all.subspan(xor_.First);
  const auto fills =
      std::ranges::count_if(group, [](const ListCommand& c) { return c.Kind != ListKind::Clip; });
  if (static_cast<std::size_t>(fills) != 2 * xor_.Count + 1) return;
  const auto clip = State().Clip;
  list_.Truncate(xor_.First);
  AddClipPath(xor_.Mask);
  list_.SetClip(State().Clip);
  for (const auto& [path, color] : xor_.Again) {
    const ListBrush brush{QBrush(color)};
    list_.AddShape(path, nullptr, &brush);
  }
  State().Clip = clip;
}

}  // namespace tarvis
