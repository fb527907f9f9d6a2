// Small outline icons, drawn at whatever size and in whatever text colour the desktop has at the moment.
#pragma once

#include <QIcon>

namespace tarvis {

// `outline` is a path on a square of 16 as in the table of commands; it must outlive the icon.
QIcon OutlineIcon(const char* outline);

}  // namespace tarvis
