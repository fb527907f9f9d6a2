// Tools that are large enough for fingers.
#pragma once

class QToolBar;

namespace tarvis {

// Whether the computer has a touch screen.
[[nodiscard]] bool HasTouchScreen();

// Makes each tool at least so large that a finger finds it.
void FitFingers(QToolBar& bar);

}  // namespace tarvis
