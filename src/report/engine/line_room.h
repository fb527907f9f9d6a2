// The room of a text on one line that is wider than its box.
#pragma once

#include "report/engine/band.h"

namespace tarvis {

struct LineRoom {
  float Left = 0;
  float Right = 0;

  float Width() const { return Right - Left; }
};

// The box of `text` and the free room next to it, on the side that it isn't aligned to: up to the next
// control that prints anything, to what was printed in `band` before, to a frame around the text, or to the
// edge of the paper (`paper`). Centred text has its box only. `line` is the place of the line, as high as it
// is printed. All in twips relative to the section, but for the items of `band`, which are shifted by `left`.
LineRoom RoomOfLine(const TextControl& text, const Section& section, const Rect& line, const Band& band,
                    float left, float paper);

}  // namespace tarvis
