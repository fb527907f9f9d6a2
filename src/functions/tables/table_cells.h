// Cells of the program, zone and jog tables, whose text is 9 points.
#pragma once

#include "report/engine/control.h"

namespace tarvis {

inline constexpr CellStyle Nine{.Size = 9};
inline constexpr CellStyle NineBold{
    .Size = 9, .Bold = true, .Alignment = Align::Centre, .Border = true, .Filled = true, .Fill = 0xE0E0E0};

}  // namespace tarvis
