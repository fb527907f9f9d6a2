// Run-length coded bitmaps of 4 and 8 bits a pixel.
#pragma once

#include <QImage>

#include "pictures/dib_header.h"

namespace tarvis {

// BadDib if the bits end before the picture does. Runs that pass the edge of a row are cut there.
QImage DecodeRle(const DibHeader& header, Bytes bits);

}  // namespace tarvis
