// The fonts that pages need.
#pragma once

#include "run/desktop.h"

namespace tarvis {

// Ends the process with status 1 and a line on standard error if no font is installed: every page and window
// would be wrong then. If neither Arial nor Liberation Sans is, a line names the font that pages are set in
// instead.
void RequireFonts(Desktop& desktop);

}  // namespace tarvis
