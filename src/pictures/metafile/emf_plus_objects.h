// The objects that the extended records of an enhanced metafile draw with.
#pragma once

#include <variant>

#include "pictures/metafile/record_reading.h"

namespace tarvis {

struct PlusPen {
  ListPen Pen;
  double Width = 0;  // world units, or pixels if told so
  bool InPixels = false;
};

struct PlusFont {
  MetaFont Font;  // its height in world units, below 0
};

struct PlusFormat {
  std::uint32_t Align = 0, LineAlign = 0;  // 0 near, 1 centred, 2 far
};

using PlusObject =
    std::variant<std::monostate, ListBrush, PlusPen, QPainterPath, QImage, PlusFont, PlusFormat>;

enum class PlusKind : unsigned { Brush = 1, Pen = 2, Path = 3, Region = 4, Image = 5, Font = 6, Format = 7 };

// SkipRecord if the object can't be played, OutOfBytes if it is broken.
PlusObject ReadPlusObject(PlusKind kind, ByteReader& reader);

QColor PlusColor(std::uint32_t argb);
QPointF ReadPointF(ByteReader& reader);
QRectF ReadRectF(ByteReader& reader);
QTransform ReadTransformF(ByteReader& reader);
Points ReadPlusPoints(ByteReader& reader, std::size_t count, bool compressed);

}  // namespace tarvis
