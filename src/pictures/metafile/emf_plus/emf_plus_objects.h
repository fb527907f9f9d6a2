// The objects that the extended records of an enhanced metafile draw with.
#pragma once

#include <variant>

#include "pictures/metafile/context/record_reading.h"
#include "pictures/metafile/list/metafile_picture.h"

namespace tarvis {

// Colours that run from an outline to a point inside it.
struct PathGradient {
  QPainterPath Outline;
  QPointF Center;
  QColor Inside;
  std::vector<QColor> Around;  // one for each corner of the outline, or one for all of it
  QGradientStops Stops;        // from the outline at 0 to the centre at 1, where there is one colour for all
  QTransform Transform;
};

struct PlusBrush {
  ListBrush List;
  std::shared_ptr<const PathGradient> Path;  // in its stead, if there is one
};

// What ends a line: an area in widths of the pen, its end at the origin, the line coming from above.
struct PlusCap {
  QPainterPath Shape;  // empty: none
  double Inset = 0;    // where the line itself ends, in widths of the pen
};

struct PlusPen {
  ListPen Pen;
  double Width = 0;  // world units, or pixels if `InPixels` is set
  bool InPixels = false;
  PlusCap Start, End;
};

struct PlusFont {
  MetaFont Font;  // its height in world units, below 0
};

struct PlusFormat {
  std::uint32_t Align = 0, LineAlign = 0;  // 0 near, 1 centred, 2 far
  bool RunsToTheLeft = false;              // near is then the right side
  bool Wraps = true;
};

// An object that changes nothing that is seen.
struct PlusHint {};

using PlusMetafile = std::shared_ptr<const MetafilePicture>;

using PlusObject = std::variant<std::monostate, PlusBrush, PlusPen, QPainterPath, QImage, PlusMetafile,
                                PlusFont, PlusFormat, PlusHint>;

enum class PlusKind : unsigned {
  Brush = 1,
  Pen = 2,
  Path = 3,
  Region = 4,
  Image = 5,
  Font = 6,
  Format = 7,
  ImageAttributes = 8,
  LineCap = 9
};

// All of these: SkipRecord if the object can't be played, OutOfBytes if it is broken.
PlusObject ReadPlusObject(PlusKind kind, ByteReader& reader);
PlusBrush ReadPlusBrush(ByteReader& reader);
PlusPen ReadPlusPen(ByteReader& reader);
QPainterPath ReadPlusPath(ByteReader& reader);
QPainterPath ReadPlusRegion(ByteReader& reader);
QImage ReadPlusImage(ByteReader& reader);
// Whether an image is a metafile, and that metafile.
bool IsPlusMetafile(Bytes image);
PlusMetafile ReadPlusMetafile(ByteReader& reader, GlyphOutlines& glyphs, PictureBudget& budget);

// Caps by number, and those of a form of their own.
PlusCap MakePlusCap(std::uint32_t number);
PlusCap ReadPlusCap(ByteReader& reader);

// How points are written: in 16 bits, or each from the last one.
enum : std::uint32_t { PlusRelativeFlag = 0x800, PlusCompressedFlag = 0x4000 };

QColor PlusColor(std::uint32_t argb);
double ReadF(ByteReader& reader);
QPointF ReadPointF(ByteReader& reader);
QRectF ReadRectF(ByteReader& reader);
QTransform ReadTransformF(ByteReader& reader);
Points ReadPlusPoints(ByteReader& reader, std::size_t count, std::uint32_t flags);

}  // namespace tarvis
