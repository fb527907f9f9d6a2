#include "pictures/metafile/context/device_clip.h"

namespace tarvis {
namespace {

// Set operations on outlines take time with the square of their size, so both size and number are limited.
constexpr int MostElements = 400;
constexpr int MostCostlyClips = 500;
constexpr std::size_t MostPaths = 32;
constexpr double Far = 1e7;

// Whether `path` is the upright box around it.
bool IsBox(const QPainterPath& path) {
  if (path.elementCount() != 5) return false;
  for (int i = 0; i < 4; ++i) {
    const auto here = path.elementAt(i);
    const auto next = path.elementAt(i + 1);
    if (!next.isLineTo() || (here.x != next.x) == (here.y != next.y)) return false;
  }
  return QPointF(path.elementAt(0)) == QPointF(path.elementAt(4));
}

QPainterPath BoxPath(const QRectF& box) {
  QPainterPath path;
  path.addRect(box);
  return path;
}

// All but `path`.
QPainterPath Outside(const QPainterPath& path) {
  QPainterPath outside = BoxPath({-Far, -Far, 2 * Far, 2 * Far});
  outside.addPath(path);
  outside.setFillRule(Qt::OddEvenFill);
  return outside;
}

std::shared_ptr<ListClip> CopyOf(const std::shared_ptr<const ListClip>& clip) {
  return clip == nullptr ? std::make_shared<ListClip>() : std::make_shared<ListClip>(*clip);
}

}  // namespace

std::shared_ptr<const ListClip> IntersectedClip(const std::shared_ptr<const ListClip>& clip,
                                                const QPainterPath& device) {
  auto copy = CopyOf(clip);
  if (IsBox(device)) {
    const QRectF box = device.boundingRect();
    copy->Box = copy->HasBox ? copy->Box & box : box;
    copy->HasBox = true;
    return copy;
  }
  if (copy->Paths.size() >= MostPaths) throw SkipRecord();
  copy->Paths.push_back(std::make_shared<QPainterPath>(device));
  return copy;
}

void DeviceClip::Intersect(const QRectF& box) {
  Add(context_.ToDevice().map(BoxPath(box)));
}

void DeviceClip::Exclude(const QRectF& box) {
  Add(Outside(context_.ToDevice().map(BoxPath(box))));
}

void DeviceClip::Offset(QPointF by) {
  if (State().Clip == nullptr) return;
  const QTransform toDevice = context_.ToDevice();
  const QPointF device = toDevice.map(by) - toDevice.map(QPointF());
  auto clip = CopyOf(State().Clip);
  for (const auto& path : clip->Paths) budget_.TakeElements(static_cast<std::size_t>(path->elementCount()));
  clip->Box.translate(device);
  for (auto& path : clip->Paths) path = std::make_shared<QPainterPath>(path->translated(device));
  State().Clip = clip;
}

void DeviceClip::Select(const QPainterPath& device, ClipMode mode) {
  budget_.TakeElements(static_cast<std::size_t>(device.elementCount()));
  switch (mode) {
    case ClipMode::Copy:
      Reset();
      return Add(device);
    case ClipMode::And:
      return Add(device);
    case ClipMode::Difference:
      return Add(Outside(device));
    case ClipMode::Or:
      if (State().Clip == nullptr) return;
      return Combine(device, mode);
    case ClipMode::Xor:
      if (State().Clip == nullptr) return Add(Outside(device));
      return Combine(device, mode);
  }
  throw SkipRecord();
}

void DeviceClip::Combine(const QPainterPath& device, ClipMode mode) {
  const ListClip& now = *State().Clip;
  int elements = device.elementCount();
  for (const auto& path : now.Paths) elements += path->elementCount();
  if (elements > MostElements || ++costlyClips_ > MostCostlyClips) throw SkipRecord();
  QPainterPath area = BoxPath(now.HasBox ? now.Box : QRectF(-Far, -Far, 2 * Far, 2 * Far));
  for (const auto& path : now.Paths) area = area.intersected(*path);
  const QPainterPath both =
      mode == ClipMode::Or ? area.united(device) : area.united(device).subtracted(area.intersected(device));
  auto clip = std::make_shared<ListClip>();
  clip->Paths.push_back(std::make_shared<QPainterPath>(both));
  State().Clip = clip;
}

}  // namespace tarvis
