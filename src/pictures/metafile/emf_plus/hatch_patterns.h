// The hatches of the extended records that are made of dots, as they are published.
#pragma once

#include <cstdint>

#include "pictures/metafile/list/draw_list.h"

namespace tarvis {

// The dots of a hatch style by its published number (0 to 52); all zero if it is made of lines or isn't
// known.
HatchDots FindHatchDots(std::uint32_t style);

}  // namespace tarvis
