// The objects that every device context has at hand.
#pragma once

#include "pictures/metafile/context/dc_state.h"

namespace tarvis {

inline constexpr std::uint32_t StockObjectBit = 0x80000000;

// SkipRecord if there is no such object.
MetaObject StockObject(std::uint32_t number);

}  // namespace tarvis
