// Device-independent bitmaps, as found in bitmap files and in records of metafiles.
#pragma once

#include <QImage>

#include "pictures/dib_header.h"

namespace tarvis {

// How many bytes the bitmap takes once it is decoded: a bitmap that holds a JPEG or PNG file is as large as
// that, whatever its header says.
std::size_t DecodedSize(const DibHeader& header, Bytes bits);

// The picture of a bitmap; BadDib or OutOfBytes if it can't be shown. Pixels that a run-length coded bitmap
// leaves out take colour 0. The alpha of 32 bit pixels counts if the header has an alpha mask, or if
// `alphaByte` says that the fourth byte is one.
QImage DecodeDib(const DibHeader& header, Bytes bits, bool alphaByte = false);

// The same for a bitmap whose bits follow its header.
QImage DecodePackedDib(Bytes bytes, DibColors colors = DibColors::Rgb, std::span<const QRgb> palette = {});

// The same for a bitmap with a file header ("BM") in front.
QImage DecodeBmpFile(Bytes bytes);

}  // namespace tarvis
