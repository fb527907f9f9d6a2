// The progress of what nobody cancels.
#pragma once

namespace tarvis {

inline bool GoOn(int /*done*/, int /*total*/) {
  return true;
}

}  // namespace tarvis
