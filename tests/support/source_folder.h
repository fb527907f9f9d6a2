// Where the sources of this build are: samples, goldens and documents are read from there.
#pragma once

#include <string>

namespace tarvis {

// Without a separator at its end, as the build system names it.
std::string SourceFolder();

}  // namespace tarvis
