// The looks of texts and table cells that reports share.
#pragma once

#include "report/engine/control.h"

namespace tarvis {

inline constexpr Color TitleFill = 0xE0E0E0;

inline constexpr CellStyle TitleCell{
    .Alignment = Align::Centre, .Border = true, .Filled = true, .Fill = TitleFill};
inline constexpr CellStyle ValueCell{.Border = true, .Filled = true};
inline constexpr CellStyle CentredCell{.Alignment = Align::Centre, .Border = true, .Filled = true};
inline constexpr CellStyle RightAlignedCell{.Alignment = Align::Right, .Border = true, .Filled = true};
inline constexpr CellStyle RightAlignedText{.Alignment = Align::Right};

}  // namespace tarvis
