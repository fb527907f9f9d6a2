// The columns that the servo drive settings and the mechanical settings of a simulation share.
#pragma once

#include "report/name_value_table.h"

namespace tarvis {

inline constexpr TableColumns SimSettingColumns{.Name = {"Items", 142, 3685},
                                                .Value = {"Setting Value", 3827, 2834, Align::Right},
                                                .Unit = TableColumn{"Unit", 6661, 2268, Align::Right}};

}  // namespace tarvis
