// Standard output for bytes that are no text.
#pragma once

#include <string>
#include <string_view>

namespace tarvis {

// Whether the caller has left standard output open. To be called before the process is guarded, which puts
// the null device in the place of a closed one.
bool IsStandardOutputOpen();

// Writes all of `bytes`. Returns why they can't be written, empty if all is well.
std::string WriteStandardOutput(std::string_view bytes);

}  // namespace tarvis
