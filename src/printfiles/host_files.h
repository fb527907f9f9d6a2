// Loads a file of the host into the lines of the session. Paths are UTF-8 with backslashes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvis {

struct PrintRun;

// In bytes: the 32768 lines that a reader counts, of 1024 bytes on average.
constexpr std::int64_t LargestFile = std::int64_t{32768} * 1024;

// Loads the lines of a file into `Lines` of the session, and sets `LineCount`, `LinesFile` and `Diagnosis`.
// Returns the number of lines, or -1, also in `LineCount`, if the file can't be read or is too large. A line
// ends at CR LF or at a CR alone; an LF alone is a part of its line.
std::int32_t LoadLines(PrintRun& run, std::string_view path);

// The same with bytes that were already read; `path` only names them. Never fails.
std::int32_t LoadBytes(PrintRun& run, std::string_view path, std::string bytes);

}  // namespace tarvis
