// Whether a file may be written to a path that a dialog has chosen.
#pragma once

#include <QString>

class QWidget;

namespace tarvis {

// Whether a file may be written at `path`. Asks before a file is replaced, and explains that a folder, a
// device or anything else that is no file is never replaced.
[[nodiscard]] bool MayWriteTo(const QString& path, QWidget* parent);

}  // namespace tarvis
