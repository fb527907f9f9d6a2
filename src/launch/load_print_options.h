// The print options at launch.
#pragma once

#include <string_view>

namespace tarvis {

struct PrintRun;

// Leaves `Options` as PrintOption.ToT in the system folder has them, or as the defaults if there is no such
// file; one that is refused is failure 10. Then clears what the session keeps of overlap, progress and mode
// `SimEx`.
void LoadPrintOptions(PrintRun& run);

// The same from the file at `path`, which must be there.
void LoadPrintOptions(PrintRun& run, std::string_view path);

}  // namespace tarvis
