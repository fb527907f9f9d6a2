// What records of both metafile formats are made of.
#pragma once

#include "pictures/dib.h"
#include "pictures/metafile/context/drawing.h"

namespace tarvis {

inline QPointF ReadPoint16(ByteReader& reader) {
  const double x = reader.I16();
  return {x, static_cast<double>(reader.I16())};
}

inline QPointF ReadPoint32(ByteReader& reader) {
  const double x = reader.I32();
  return {x, static_cast<double>(reader.I32())};
}

// `count` points of two 16 or 32 bit coordinates; OutOfBytes before any memory is taken.
Points ReadPoints(ByteReader& reader, std::size_t count, bool small);

// Left, top, right and bottom, in 32 bits.
QRectF ReadBox(ByteReader& reader);

// A colour, which may be given as an entry of the palette.
QColor ReadColor(ByteReader& reader, const MetaPalette& palette);

MetaPalette ReadPalette(ByteReader& reader, std::size_t count);

// A brush without a pattern; SkipRecord if its style is unknown.
MetaBrush MakeMetaBrush(std::uint32_t style, QColor color, std::uint32_t hatch);

// Decodes the bitmaps of records.
class RecordBitmaps {
 public:
  explicit RecordBitmaps(PictureBudget& budget) : budget_(budget) {}

  // A bitmap that can't be shown is SkipRecord; too much of them is TooCostly.
  QImage Decode(Bytes info, Bytes bits, std::uint32_t usage, const MetaPalette& palette,
                bool alphaByte = false);
  // With the bits after the header.
  QImage DecodePacked(Bytes bytes, std::uint32_t usage, const MetaPalette& palette);

 private:
  PictureBudget& budget_;
};

}  // namespace tarvis
