// The folders of the host, by its edition.
#pragma once

namespace tarvis {

class HostRegistry;
struct PrintRun;

// Fills `HostVersion`, `SystemFolder`, `TempFolder` and the folder part of `HelpFile` by `HostEdition`. A
// value that is missing in the registry counts as empty; an edition other than 1, 2 or 4 is failure 1.
void LoadSystemPaths(PrintRun& run, HostRegistry& registry);

}  // namespace tarvis
