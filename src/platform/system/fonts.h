// The fonts that pages need.
#pragma once

#include "run/desktop.h"

namespace tarvis {

// Ends the process with status 1 and a line on standard error if no font is installed: every page and window
// would be wrong then. If neither Arial nor its twin is, a line says in which font pages are set instead.
void RequireFonts(Desktop& desktop);

}  // namespace tarvis
