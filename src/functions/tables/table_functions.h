// The functions of the host that print the program table, the zone table and the jog speed table.
#pragma once

#include "report/print_function.h"

namespace tarvis {

extern const PrintFunction IdxTblFunction;
extern const PrintFunction ZoneTblFunction;
extern const PrintFunction JogTblFunction;

}  // namespace tarvis
