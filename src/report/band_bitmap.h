// The background picture of the caption of every function report: a slate blue tab that fades in its middle.
#pragma once

#include <string>

namespace tarvis {

// A Windows BMP of 46686 bytes: 536 by 29 pixels, 24 bits a pixel, made from its table of rows.
const std::string& BandBitmap();

}  // namespace tarvis
