// How long work reports its progress.
#pragma once

#include <functional>

namespace tarvis {

// Called with the progress; returns false if the work was cancelled and should stop soon.
using Progress = std::function<bool(int done, int total)>;

}  // namespace tarvis
