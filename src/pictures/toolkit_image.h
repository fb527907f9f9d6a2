// Picture formats that the toolkit reads: files of their own, or inside bitmaps and metafiles.
#pragma once

#include <QImage>

#include "pictures/byte_reader.h"

namespace tarvis {

// How many bytes the picture will take once it is decoded; 0 if its header doesn't say. TooCostly if it is
// larger than any picture may be, whatever the file around it says of its size; BadDib if the format is none
// of those that pictures may hold.
std::size_t ToolkitImageSize(Bytes bytes);

// BadDib or OutOfBytes with the reason if it can't be shown, TooCostly as above.
QImage ReadToolkitImage(Bytes bytes);

}  // namespace tarvis
