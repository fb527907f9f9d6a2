// A device context: its state, the states that were saved, and the mapping from logical to device units.
#pragma once

#include "pictures/metafile/context/dc_state.h"

namespace tarvis {

class DeviceContext {
 public:
  DcState& State() { return state_; }
  const DcState& State() const { return state_; }

  void Save();
  // Back to a state: by number from 1, or counted back from the last saved one if below 0. Others are
  // dropped.
  void Restore(int which);

  // The resolution of the device, for the mapping modes with physical units.
  void SetPixelsPerMillimeter(double x, double y) { pixelsPerMillimeter_ = {x, y}; }

  // From logical units to the device's.
  QTransform ToDevice() const { return state_.World * PageToDevice(); }
  QTransform PageToDevice() const;
  // Of lengths that have no direction.
  double Scale() const;

 private:
  QPointF PageScale() const;

  DcState state_;
  std::vector<DcState> saved_;
  QPointF pixelsPerMillimeter_{96 / 25.4, 96 / 25.4};
};

}  // namespace tarvis
