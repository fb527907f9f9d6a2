// What may be written over, whichever dialog chose it.
#pragma once

#include <QString>

class QWidget;

namespace tarvis {

// Whether a file may be written at `path`. Asks before a file is replaced; says that a folder, a device or
// anything else that is no file is never replaced.
bool MayWriteTo(const QString& path, QWidget* parent);

}  // namespace tarvis
