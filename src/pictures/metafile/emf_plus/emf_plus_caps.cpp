// Line caps of the extended records, by number and of a form of their own.
#include <cmath>
#include <numbers>

#include "pictures/metafile/emf_plus/emf_plus_objects.h"

namespace tarvis {
namespace {

// An arrow with its tip at the end of the line.
PlusCap Arrow(double width, double height, double middleInset) {
  PlusCap cap;
  cap.Shape.addPolygon(QPolygonF({QPointF(0, 0), QPointF(-width / 2, -height),
                                  QPointF(0, middleInset - height), QPointF(width / 2, -height)}));
  cap.Shape.closeSubpath();
  cap.Inset = std::max(height - middleInset, 0.0) * 0.9;
  return cap;
}

PlusCap ReadArrow(ByteReader& reader) {
  const double width = ReadF(reader);
  const double height = ReadF(reader);
  const double middleInset = ReadF(reader);
  reader.Skip(4 + 12 + 4);
  const double scale = ReadF(reader);
  return Arrow(width * scale, height * scale, middleInset * scale);
}

PlusCap ReadOwnForm(ByteReader& reader) {
  enum : std::uint32_t { HasFill = 1, HasLine = 2 };
  const std::uint32_t flags = reader.U32();
  reader.Skip(4);
  PlusCap cap;
  cap.Inset = ReadF(reader);
  reader.Skip(12 + 4);
  const double scale = ReadF(reader);
  reader.Skip(16);
  if ((flags & (HasFill | HasLine)) == 0) return {};
  ByteReader path(reader.Take(reader.U32()));
  cap.Shape = ReadPlusPath(path);
  if ((flags & HasFill) == 0) {
    QPainterPathStroker stroker;
    if (cap.Shape.elementCount() > 1000) throw SkipRecord();
    cap.Shape = stroker.createStroke(cap.Shape);
  }
  cap.Shape = QTransform::fromScale(scale, scale).map(cap.Shape);
  cap.Inset *= scale;
  return cap;
}

}  // namespace

PlusCap MakePlusCap(std::uint32_t number) {
  enum : std::uint32_t { SquareAnchor = 0x11, RoundAnchor = 0x12, DiamondAnchor = 0x13, ArrowAnchor = 0x14 };
  PlusCap cap;
  const double side = std::numbers::sqrt2;
  if (number == SquareAnchor) cap.Shape.addRect(-side / 2, -side / 2, side, side);
  if (number == RoundAnchor) cap.Shape.addEllipse(QPointF(), 1, 1);
  if (number == DiamondAnchor)
    cap.Shape.addPolygon(QPolygonF({QPointF(0, -1), QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0)}));
  if (number == ArrowAnchor) return Arrow(2, std::numbers::sqrt3, 0);
  return cap;
}

PlusCap ReadPlusCap(ByteReader& reader) {
  enum : std::uint32_t { OwnForm = 0, AdjustableArrow = 1 };
  reader.Skip(4);
  const std::uint32_t kind = reader.U32();
  if (kind == OwnForm) return ReadOwnForm(reader);
  if (kind == AdjustableArrow) return ReadArrow(reader);
  throw SkipRecord();
}

}  // namespace tarvis
