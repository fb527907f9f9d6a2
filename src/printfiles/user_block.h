// The parameter block, which has the same form in User.tmp, Trace.tmp, RealTrace.tmp and Sim.tmp.
#pragma once

#include "printfiles/key_table.h"
#include "run/user_data.h"

namespace tarvis {

// The keys `UserNum` to `Comment`, for the length of one file.
KeyTable UserBlockKeys(UserData& user);

}  // namespace tarvis
