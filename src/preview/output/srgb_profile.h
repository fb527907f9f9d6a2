// The colours of screens as an ICC profile, made from the figures of IEC 61966-2-1.
#pragma once

#include <string>

namespace tarvis {

// Of version 2.1, which every part of the standard of archives takes; less than 1,100 bytes.
[[nodiscard]] std::string SrgbProfile();

}  // namespace tarvis
