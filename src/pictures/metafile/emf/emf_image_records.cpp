// Records of enhanced metafiles that draw bitmaps and gradients.
#include <cmath>

#include "pictures/metafile/context/raster_ops.h"
#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t TransformSize = 24;

struct SourceBitmap {
  std::uint32_t Usage = 0;
  std::uint32_t InfoOffset = 0, InfoSize = 0, BitsOffset = 0, BitsSize = 0;

  void ReadPlace(ByteReader& reader) {
    InfoOffset = reader.U32();
    InfoSize = reader.U32();
    BitsOffset = reader.U32();
    BitsSize = reader.U32();
  }
  bool IsThere() const { return InfoSize > 0; }
  Bytes Info(const ByteReader& reader) const { return Slice(reader.All(), InfoOffset, InfoSize); }
  QImage Decode(EmfPlayback& playback, const ByteReader& reader, bool alphaByte = false) const {
    if (!IsThere()) throw SkipRecord();
    return playback.Bitmaps.Decode(Info(reader), Slice(reader.All(), BitsOffset, BitsSize), Usage,
                                   playback.Palette(), alphaByte);
  }
};

QRectF ReadPlacedBox(ByteReader& reader) {
  const QPointF at = ReadPoint32(reader);
  const QPointF size = ReadPoint32(reader);
  return {at.x(), at.y(), size.x(), size.y()};
}

// The head of the records that copy a block from a bitmap: all but the size of the source.
struct BlockHead {
  QRectF Destination;
  std::uint32_t Operation = 0;  // raster operation, blending or colour, by record
  QPointF SourceOrigin;
  SourceBitmap Bitmap;

  explicit BlockHead(ByteReader& reader) {
    reader.Skip(BoundsSize);
    Destination = ReadPlacedBox(reader);
    Operation = reader.U32();
    SourceOrigin = ReadPoint32(reader);
    reader.Skip(TransformSize + 4);
    Bitmap.Usage = reader.U32();
    Bitmap.ReadPlace(reader);
  }
  QRectF Source(QPointF size) const { return {SourceOrigin, QSizeF(size.x(), size.y())}; }
};

void BitBlock(EmfPlayback& playback, ByteReader& reader, bool stretch) {
  const BlockHead head(reader);
  if (!head.Bitmap.IsThere() || !UsesSource(head.Operation)) {
    if (UsesSource(head.Operation)) throw SkipRecord();
    return playback.Draw.Areas().PatternBlock(head.Destination, head.Operation);
  }
  const QPointF size =
      stretch ? ReadPoint32(reader) : QPointF(head.Destination.width(), head.Destination.height());
  playback.Draw.Images().Block(
      {head.Bitmap.Decode(playback, reader), head.Source(size), head.Destination, head.Operation});
}

// Rows are counted from the bottom of a bitmap that is stored bottom up.
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

  explicit DibHead(ByteReader& reader) {
    reader.Skip(BoundsSize);
    To = ReadPoint32(reader);
    Source = ReadPlacedBox(reader);
    Bitmap.ReadPlace(reader);
    Bitmap.Usage = reader.U32();
  }
  // The image, and which part of it is meant; where it goes is up to the caller.
  BlockRecord Block(EmfPlayback& playback, ByteReader& reader) const {
    BlockRecord block;
    block.Image = Bitmap.Decode(playback, reader);
    block.Source = SourceFromBottom(Bitmap.Info(reader), Source);
    return block;
  }
};

void StretchDibBits(EmfPlayback& playback, ByteReader& reader) {
  const DibHead head(reader);
  const std::uint32_t operation = reader.U32();
  const QPointF size = ReadPoint32(reader);
  const QRectF destination(head.To, QSizeF(size.x(), size.y()));
  if (!UsesSource(operation)) return playback.Draw.Areas().PatternBlock(destination, operation);
  BlockRecord block = head.Block(playback, reader);
  block.Rop = operation;
  block.Destination = destination;
  playback.Draw.Images().Block(std::move(block));
}

void SetDibBitsToDevice(EmfPlayback& playback, ByteReader& reader) {
  const DibHead head(reader);
  BlockRecord block = head.Block(playback, reader);
  block.Rop = SourceCopy;
  // Its size counts in pixels of the device.
  const QTransform toDevice = playback.Draw.Context().ToDevice();
  const double across = std::hypot(toDevice.m11(), toDevice.m12());
  const double down = std::hypot(toDevice.m21(), toDevice.m22());
  if (across == 0 || down == 0) throw SkipRecord();
  const double up = toDevice.m22() < 0 ? -1 : 1;
  block.Destination = {head.To.x(), head.To.y(), block.Source.width() / across,
                       up * block.Source.height() / down};
  playback.Draw.Images().Block(std::move(block));
}

// Pixels of `image` over white pixels of `mask` stay; without a mask all do.
QImage WithMask(EmfPlayback& playback, ByteReader& reader, QImage image) {
  reader.Skip(8);
  SourceBitmap mask;
  mask.Usage = reader.U32();
  mask.ReadPlace(reader);
  if (!mask.IsThere()) return image;
  QImage alpha = mask.Decode(playback, reader).convertToFormat(QImage::Format_Grayscale8);
  image = image.convertToFormat(QImage::Format_ARGB32);
  image.setAlphaChannel(alpha.size() == image.size() ? alpha : alpha.scaled(image.size()));
  return image;
}

void MaskBlock(EmfPlayback& playback, ByteReader& reader) {
  const BlockHead head(reader);
  const QImage image = WithMask(playback, reader, head.Bitmap.Decode(playback, reader));
  const QPointF size(head.Destination.width(), head.Destination.height());
  playback.Draw.Images().Block({image, head.Source(size), head.Destination, SourceCopy});
}

void ParallelogramBlock(EmfPlayback& playback, ByteReader& reader) {
  reader.Skip(BoundsSize);
  const Points corners = ReadPoints(reader, 3, false);
  const QRectF source = ReadPlacedBox(reader);
  reader.Skip(TransformSize + 4);
  SourceBitmap bitmap;
  bitmap.Usage = reader.U32();
  bitmap.ReadPlace(reader);
  playback.Draw.Images().Parallelogram(WithMask(playback, reader, bitmap.Decode(playback, reader)), source,
                                       corners);
}

void AlphaBlend(EmfPlayback& playback, ByteReader& reader) {
  const BlockHead head(reader);
  const QPointF size = ReadPoint32(reader);
  const auto opacity = static_cast<int>(head.Operation >> 16 & 0xFF);
  const bool hasAlpha = head.Operation >> 24 == 1;
  QImage image = head.Bitmap.Decode(playback, reader, hasAlpha);
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
  playback.Draw.Images().Block({image, head.Source(size), head.Destination, SourceCopy});
}

void TransparentBlock(EmfPlayback& playback, ByteReader& reader) {
  const BlockHead head(reader);
  const QPointF size = ReadPoint32(reader);
  const QRgb key = qRgb(static_cast<int>(head.Operation & 0xFF), static_cast<int>(head.Operation >> 8 & 0xFF),
                        static_cast<int>(head.Operation >> 16 & 0xFF));
  QImage image = head.Bitmap.Decode(playback, reader).convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      if ((row[x] & 0xFFFFFF) == (key & 0xFFFFFF)) row[x] = 0;
  }
  playback.Draw.Images().Block({image, head.Source(size), head.Destination, SourceCopy});
}

void GradientFill(EmfPlayback& playback, ByteReader& reader) {
  enum : std::uint32_t { Across = 0, Down = 1, Triangles = 2 };
  reader.Skip(BoundsSize);
  const std::size_t vertexCount = reader.U32();
  const std::size_t meshCount = reader.U32();
  const std::uint32_t mode = reader.U32();
  if (mode > Triangles) throw SkipRecord();
  ByteReader vertexes(reader.Take(vertexCount * 16));
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
  ByteReader mesh(reader.Take(meshCount * (mode == Triangles ? 12 : 8)));
  while (mesh.Left() > 0) {
    const std::size_t a = vertex(mesh), b = vertex(mesh);
    if (mode == Triangles) {
      const std::size_t c = vertex(mesh);
      playback.Draw.Areas().GradientTriangle({points[a], points[b], points[c]},
                                             {colors[a], colors[b], colors[c]});
    } else {
      playback.Draw.Areas().GradientBox(QRectF(points[a], points[b]), colors[a], colors[b], mode == Down);
    }
  }
}

constexpr EmfRecord Records[] = {
    {Emr::BitBlt, [](EmfPlayback& playback, ByteReader& reader) { BitBlock(playback, reader, false); }},
    {Emr::StretchBlt, [](EmfPlayback& playback, ByteReader& reader) { BitBlock(playback, reader, true); }},
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
