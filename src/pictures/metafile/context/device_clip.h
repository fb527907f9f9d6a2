// The clip of a device context. Regions are in device units.
#pragma once

#include "pictures/metafile/context/device_context.h"

namespace tarvis {

enum class ClipMode : std::uint32_t { And = 1, Or = 2, Xor = 3, Difference = 4, Copy = 5 };

// The clip that has `device` cut out of `clip`, which may be null; SkipRecord if it has too many parts.
std::shared_ptr<const ListClip> IntersectedClip(const std::shared_ptr<const ListClip>& clip,
                                                const QPainterPath& device);

class DeviceClip {
 public:
  DeviceClip(DeviceContext& context, PictureBudget& budget) : context_(context), budget_(budget) {}

  // Boxes are in logical units.
  void Intersect(const QRectF& box);
  void Exclude(const QRectF& box);
  void Offset(QPointF by);
  void Select(const QPainterPath& device, ClipMode mode);
  void Reset() { State().Clip = State().MetaClip; }
  // What is clipped now stays so whatever is selected later.
  void KeepAsLeast() { State().MetaClip = State().Clip; }

 private:
  DcState& State() { return context_.State(); }
  void Add(const QPainterPath& device) { State().Clip = IntersectedClip(State().Clip, device); }
  void Combine(const QPainterPath& device, ClipMode mode);

  DeviceContext& context_;
  PictureBudget& budget_;
  int costlyClips_ = 0;
};

}  // namespace tarvis
