#include "pictures/metafile/context/xor_gradient.h"

#include <algorithm>

#include "pictures/metafile/context/device_clip.h"

namespace tarvis {
namespace {

constexpr std::size_t MostFills = 4096;
constexpr int MostElements = 2000;

}  // namespace

void XorGradient::FollowXorFill(const QPainterPath& device, DrawList& list, const DcState& state) {
  const std::size_t commands = list.Commands().size();
  if (!group_.HasMask) {
    if (group_.Count == 0) group_.First = commands - 1;
    ++group_.Count;
    return;
  }
  if (group_.Count > MostFills || device.elementCount() > MostElements) {
    group_ = {};
    return;
  }
  group_.Again.emplace_back(device, state.Brush->Color);
  if (group_.Again.size() < group_.Count) return;
  DrawMaskedFills(list, state);
  group_ = {};
}

void XorGradient::FollowCopyFill(const QPainterPath& device, const MetaBrush& brush) {
  const bool masks = group_.Count > 0 && !group_.HasMask && brush.Is == MetaBrush::Kind::Solid &&
                     brush.Color == QColor(Qt::black) && device.elementCount() <= MostElements;
  if (!masks) {
    group_ = {};
    return;
  }
  group_.HasMask = true;
  group_.Mask = device;
}

// Black XORed with a colour is that colour, and outside the mask the second time takes back the first.
void XorGradient::DrawMaskedFills(DrawList& list, const DcState& state) const {
  const std::span<const ListCommand> all(list.Commands());
  const std::span<const ListCommand> group = all.subspan(group_.First);
  const auto fills =
      std::ranges::count_if(group, [](const ListCommand& c) { return c.Kind != ListKind::Clip; });
  if (static_cast<std::size_t>(fills) != 2 * group_.Count + 1) return;
  list.Truncate(group_.First);
  list.SetClip(IntersectedClip(state.Clip, group_.Mask));
  for (const auto& [path, color] : group_.Again) {
    const ListBrush brush{QBrush(color)};
    list.AddShape(path, nullptr, &brush);
  }
}

}  // namespace tarvis
