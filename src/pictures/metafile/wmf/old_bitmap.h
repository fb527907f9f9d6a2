// Bitmaps in the oldest form, which images and patterns share.
#pragma once

#include "pictures/metafile/context/record_reading.h"

namespace tarvis {

// Sizes are in pixels, and of a row in bytes.
struct OldBitmapHead {
  int Width;
  int Height;
  std::size_t RowSize;
  int Bits;  // of a pixel
};

// SkipRecord if it has no pixels, or several planes.
inline OldBitmapHead ReadOldBitmapHead(ByteReader& reader) {
  reader.Skip(2);
  const int width = reader.I16();
  const int height = reader.I16();
  const std::size_t rowSize = reader.U16();
  const int planes = reader.U8();
  const int bits = reader.U8();
  if (planes != 1 || width < 1 || height < 1) throw SkipRecord();
  return {width, height, rowSize, bits};
}

}  // namespace tarvis
