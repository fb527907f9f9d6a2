// How work that takes a while tells how far it is.
#pragma once

#include <functional>

namespace tarvis {

// Told how far the work is; false means that it was cancelled and should stop soon.
using Progress = std::function<bool(int done, int total)>;

}  // namespace tarvis
