#include <cmath>

#include "pictures/metafile/context/raster_ops.h"
#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t BoundsSize = 16;
constexpr std::size_t TransformSize = 24;

struct SourceBitmap {
  std::uint32_t Usage = 0;
  std::uint32_t InfoOffset = 0, InfoSize = 0, BitsOffset = 0, BitsSize = 0;

  void ReadPlace(ByteReader& r) {
    InfoOffset = r.U32();
    InfoSize = r.U32();
    BitsOffset = r.U32();
    BitsSize = r.U32();
  }
  bool IsThere() const { return InfoSize > 0; }
  Bytes Info(const ByteReader& r) const { return Slice(r.All(), InfoOffset, InfoSize); }
  QImage Decode(EmfPlayback& p, const ByteReader& r, bool alphaByte = false) const {
    if (!IsThere()) throw SkipRecord();
    return p.Bitmaps.Decode(Info(r), Slice(r.All(), BitsOffset, BitsSize), Usage, p.Palette(), alphaByte);
  }
};

QRectF ReadPlacedBox(ByteReader& r) {
  const QPointF at = ReadPoint32(r);
  const QPointF size = ReadPoint32(r);
  return {at.x(), at.y(), size.x(), size.y()};
}

// The head of the records that copy a block from a bitmap: all but the size of the source.
struct BlockHead {
  QRectF Destination;
  std::uint32_t Operation = 0;  // raster operation, blending or colour, by record
  QPointF SourceOrigin;
  SourceBitmap Bitmap;

  explicit BlockHead(ByteReader& r) {
    r.Skip(BoundsSize);
    Destination = ReadPlacedBox(r);
    Operation = r.U32();
    SourceOrigin = ReadPoint32(r);
    r.Skip(TransformSize + 4);
    Bitmap.Usage = r.U32();
    Bitmap.ReadPlace(r);
  }
  QRectF Source(QPointF size) const { return {SourceOrigin, QSizeF(size.x(), size.y())}; }
};

void BitBlock(EmfPlayback& p, ByteReader& r, bool stretch) {
  const BlockHead head(r);
  if (!head.Bitmap.IsThere() || !UsesSource(head.Operation)) {
    if (UsesSource(head.Operation)) throw SkipRecord();
    return p.Draw.PatternBlock(head.Destination, head.Operation);
  }
  const QPointF size =
      stretch ? ReadPoint32(r) : QPointF(head.Destination.width(), head.Destination.height());
  p.Draw.Block({head.Bitmap.Decode(p, r), head.Source(size), head.Destination, head.Operation});
}

// Rows are counted from the bottom of a bitmap that stands bottom up.
QRectF SourceFromBottom(const Bytes info, QRectF source) {
  ByteReader header(info);
  header.Skip(8);
  const std::int32_t height = header.I32();
  if (height > 0) source.moveTop(height - source.top() - source.height());
  return source;
}

// Head of the records that bring a bitmap of their own along, up to its usage.
struct DibHead {
  QPointF To;
  QRectF Source;
  SourceBitmap Bitmap;

  explicit DibHead(ByteReader& r) {
    r.Skip(BoundsSize);
    To = ReadPoint32(r);
    Source = ReadPlacedBox(r);
    Bitmap.ReadPlace(r);
    Bitmap.Usage = r.U32();
  }
  // The image, and which part of it is meant; where it goes is up to the caller.
  BlockRecord Block(EmfPlayback& p, ByteReader& r) const {
    BlockRecord block;
    block.Image = Bitmap.Decode(p, r);
    block.Source = SourceFromBottom(Bitmap.Info(r), Source);
    return block;
  }
};

void StretchDibBits(EmfPlayback& p, ByteReader& r) {
  const DibHead head(r);
  const std::uint32_t operation = r.U32();
  const QPointF size = ReadPoint32(r);
  const QRectF destination(head.To, QSizeF(size.x(), size.y()));
  if (!UsesSource(operation)) return p.Draw.PatternBlock(destination, operation);
  BlockRecord block = head.Block(p, r);
  block.Rop = operation;
  block.Destination = destination;
  p.Draw.Block(std::move(block));
}

void SetDibBitsToDevice(EmfPlayback& p, ByteReader& r) {
  const DibHead head(r);
  BlockRecord block = head.Block(p, r);
  block.Rop = SourceCopy;
  // Its size counts in pixels of the device.
  const QTransform toDevice = p.Draw.Dc().ToDevice();
  const double across = std::hypot(toDevice.m11(), toDevice.m12());
  const double down = std::hypot(toDevice.m21(), toDevice.m22());
  if (across == 0 || down == 0) throw SkipRecord();
  const double up = toDevice.m22() < 0 ? -1 : 1;
  block.Destination = {head.To.x(), head.To.y(), block.Source.width() / across,
                       up * block.Source.height() / down};
  p.Draw.Block(std::move(block));
}

// Pixels of `image` over white pixels of `mask` stay; without a mask all do.
QImage WithMask(EmfPlayback& p, ByteReader& r, QImage image) {
  r.Skip(8);
  SourceBitmap mask;
  mask.Usage = r.U32();
  mask.ReadPlace(r);
  if (!mask.IsThere()) return image;
  QImage alpha = mask.Decode(p, r).convertToFormat(QImage::Format_Grayscale8);
  image = image.convertToFormat(QImage::Format_ARGB32);
  image.setAlphaChannel(alpha.size() == image.size() ? alpha : alpha.scaled(image.size()));
  return image;
}

void MaskBlock(EmfPlayback& p, ByteReader& r) {
  const BlockHead head(r);
  const QImage image = WithMask(p, r, head.Bitmap.Decode(p, r));
  const QPointF size(head.Destination.width(), head.Destination.height());
  p.Draw.Block({image, head.Source(size), head.Destination, SourceCopy});
}

void ParallelogramBlock(EmfPlayback& p, ByteReader& r) {
  r.Skip(BoundsSize);
  const Points corners = ReadPoints(r, 3, false);
  const QRectF source = ReadPlacedBox(r);
  r.Skip(TransformSize + 4);
  SourceBitmap bitmap;
  bitmap.Usage = r.U32();
  bitmap.ReadPlace(r);
  p.Draw.Parallelogram(WithMask(p, r, bitmap.Decode(p, r)), source, corners);
}

void AlphaBlend(EmfPlayback& p, ByteReader& r) {
  const BlockHead head(r);
  const QPointF size = ReadPoint32(r);
  const auto opacity = static_cast<int>(head.Operation >> 16 & 0xFF);
  const bool hasAlpha = head.Operation >> 24 == 1;
  QImage image = head.Bitmap.Decode(p, r, hasAlpha);
  if (hasAlpha && image.format() == QImage::Format_ARGB32)
    image.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);  // so the record has it
  if (opacity < 255) {
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
      auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
      for (int x = 0; x < image.width(); ++x)
        row[x] = qRgba(qRed(row[x]), qGreen(row[x]), qBlue(row[x]), qAlpha(row[x]) * opacity / 255);
    }
  }
  p.Draw.Block({image, head.Source(size), head.Destination, SourceCopy});
}

void TransparentBlock(EmfPlayback& p, ByteReader& r) {
  const BlockHead head(r);
  const QPointF size = ReadPoint32(r);
  const QRgb key = qRgb(static_cast<int>(head.Operation & 0xFF), static_cast<int>(head.Operation >> 8 & 0xFF),
                        static_cast<int>(head.Operation >> 16 & 0xFF));
  QImage image = head.Bitmap.Decode(p, r).convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      if ((row[x] & 0xFFFFFF) == (key & 0xFFFFFF)) row[x] = 0;
  }
  p.Draw.Block({image, head.Source(size), head.Destination, SourceCopy});
}

void GradientFill(EmfPlayback& p, ByteReader& r) {
  enum : std::uint32_t { Across = 0, Down = 1, Triangles = 2 };
  r.Skip(BoundsSize);
  const std::size_t vertexCount = r.U32();
  const std::size_t meshCount = r.U32();
  const std::uint32_t mode = r.U32();
  if (mode > Triangles) throw SkipRecord();
  ByteReader vertexes(r.Take(vertexCount * 16));
  Points points;
  std::vector<QColor> colors;
  while (vertexes.Left() > 0) {
    points.push_back(ReadPoint32(vertexes));
    const int red = vertexes.U16() >> 8, green = vertexes.U16() >> 8, blue = vertexes.U16() >> 8;
    vertexes.Skip(2);
    colors.emplace_back(red, green, blue);
  }
  const auto vertex = [&](ByteReader& mesh) {
    const std::size_t index = mesh.U32();
    if (index >= points.size()) throw OutOfBytes();
    return index;
  };
  ByteReader mesh(r.Take(meshCount * (mode == Triangles ? 12 : 8)));
  while (mesh.Left() > 0) {
    const std::size_t a = vertex(mesh), b = vertex(mesh);
    if (mode == Triangles) {
      const std::size_t c = vertex(mesh);
      p.Draw.GradientTriangle({points[a], points[b], points[c]}, {colors[a], colors[b], colors[c]});
    } else {
      p.Draw.GradientBox(QRectF(points[a], points[b]), colors[a], colors[b], mode == Down);
    }
  }
}

constexpr EmfRecord Records[] = {
    {Emr::BitBlt, [](EmfPlayback& p, ByteReader& r) { BitBlock(p, r, false); }},
    {Emr::StretchBlt, [](EmfPlayback& p, ByteReader& r) { BitBlock(p, r, true); }},
    {Emr::MaskBlt, MaskBlock},
    {Emr::PlgBlt, ParallelogramBlock},
    {Emr::SetDiBitsToDevice, SetDibBitsToDevice},
    {Emr::StretchDiBits, StretchDibBits},
    {Emr::AlphaBlend, AlphaBlend},
    {Emr::TransparentBlt, TransparentBlock},
    {Emr::GradientFill, GradientFill},
};

}  // namespace

std::span<const EmfRecord> EmfImageRecords() {
  return Records;
}

}  // namespace tarvis
