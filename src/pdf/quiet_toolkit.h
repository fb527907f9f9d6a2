// The toolkit without windows: fonts and painting alone.
#pragma once

#include <QGuiApplication>
#include <memory>

namespace tarvis {

// Starts the toolkit in such a way that it asks for no display, whatever the environment says, and says
// nothing of its own. It makes no folders either: from then on the process has no folder for temporary files.
// Throws std::bad_alloc if there is too little memory for its start. A toolkit that can't start ends the
// process with status 1 and one line on standard error.
std::unique_ptr<QGuiApplication> StartQuietToolkit(const char* programName);

}  // namespace tarvis
