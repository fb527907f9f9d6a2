// The server of the print system, which the toolkit asks for the printers.
#pragma once

#include <chrono>

namespace tarvis {

// Whether the print server takes connections and never answers. The toolkit would wait for it for two
// minutes; this waits for `patience`. False where no print server is known, and where it fails in any other
// way: the toolkit finds that out at once.
bool PrintServerIsSilent(std::chrono::milliseconds patience = std::chrono::seconds(30));

}  // namespace tarvis
