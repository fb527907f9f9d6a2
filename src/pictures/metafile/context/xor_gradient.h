// Finds gradients that writers without clips cut to a shape: fills XORed, then a black mask, then the same
// fills again. They become fills inside a clip.
#pragma once

#include "pictures/metafile/context/dc_state.h"

namespace tarvis {

class XorGradient {
 public:
  // To be called after each fill that was added to the list, by its raster operation. The group that it
  // completes is drawn anew in place of its parts.
  void FollowXorFill(const QPainterPath& device, DrawList& list, const DcState& state);
  void FollowCopyFill(const QPainterPath& device, const MetaBrush& brush);

 private:
  struct Group {
    std::size_t First = 0;  // command of the list
    std::size_t Count = 0;  // fills before the mask; 0: no group
    bool HasMask = false;
    QPainterPath Mask;
    std::vector<std::pair<QPainterPath, QColor>> Again;
  };

  void DrawMaskedFills(DrawList& list, const DcState& state) const;

  Group group_;
};

}  // namespace tarvis
