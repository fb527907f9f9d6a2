// What a test expects of a pixel.
#pragma once

#include <QColor>

namespace tarvis {

inline const QColor Red(255, 0, 0), Green(0, 255, 0), Blue(0, 0, 255), White(255, 255, 255), Black(0, 0, 0);

}  // namespace tarvis
