// Cells of the program, zone and jog tables, whose text is 9 points.
#pragma once

#include "report/cell_styles.h"

namespace tarvis {

inline constexpr CellStyle Nine{.Size = 9};
inline constexpr CellStyle NineBold{
    .Size = 9, .Bold = true, .Alignment = Align::Centre, .Border = true, .Filled = true, .Fill = TitleFill};

}  // namespace tarvis
