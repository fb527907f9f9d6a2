#include "pictures/metafile/context/device_context.h"

#include <cmath>

namespace tarvis {
namespace {

constexpr std::size_t MostSavedStates = 512;
constexpr double MillimetersPerInch = 25.4;

double MillimetersPerUnit(MapMode mode) {
  switch (mode) {
    case MapMode::LowMetric:
      return 0.1;
    case MapMode::HighMetric:
      return 0.01;
    case MapMode::LowEnglish:
      return MillimetersPerInch / 100;
    case MapMode::HighEnglish:
      return MillimetersPerInch / 1000;
    case MapMode::Twips:
      return MillimetersPerInch / 1440;
    default:
      return 0;
  }
}

double Ratio(double to, double from) {
  return from == 0 ? 1 : to / from;
}

}  // namespace

void DeviceContext::Save() {
  if (saved_.size() >= MostSavedStates) throw SkipRecord();
  saved_.push_back(state_);
}

void DeviceContext::Restore(int which) {
  const auto count = static_cast<std::int64_t>(saved_.size());
  const std::int64_t index = which < 0 ? count + which : std::int64_t{which} - 1;
  if (index < 0 || index >= count) throw SkipRecord();
  state_ = saved_[static_cast<std::size_t>(index)];
  saved_.resize(static_cast<std::size_t>(index));
}

QPointF DeviceContext::PageScale() const {
  if (const double unit = MillimetersPerUnit(state_.Mapping); unit > 0)
    return {unit * pixelsPerMillimeter_.x(), -unit * pixelsPerMillimeter_.y()};
  if (state_.Mapping == MapMode::Text) return {1, 1};
  QPointF scale(Ratio(state_.ViewportExtent.x(), state_.WindowExtent.x()),
                Ratio(state_.ViewportExtent.y(), state_.WindowExtent.y()));
  if (state_.Mapping == MapMode::Isotropic) {
    const double even = std::min(std::abs(scale.x()), std::abs(scale.y()));
    scale = {std::copysign(even, scale.x()), std::copysign(even, scale.y())};
  }
  return scale;
}

QTransform DeviceContext::PageToDevice() const {
  const QPointF scale = PageScale();
  return QTransform(scale.x(), 0, 0, scale.y(),
                    state_.ViewportOrigin.x() - state_.WindowOrigin.x() * scale.x(),
                    state_.ViewportOrigin.y() - state_.WindowOrigin.y() * scale.y());
}

double DeviceContext::Scale() const {
  return std::sqrt(std::abs(ToDevice().determinant()));
}

}  // namespace tarvis
