// Records of old-style metafiles that draw bitmaps.
#include <algorithm>
#include <utility>

#include "pictures/metafile/context/raster_ops.h"
#include "pictures/metafile/wmf/old_bitmap.h"
#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

// Height before width, and both before y and x, the order of destinations in records.
QRectF ReadSizeAndPlace(ByteReader& reader) {
  const QPointF size = ReadYX(reader);
  const QPointF at = ReadYX(reader);
  return {at.x(), at.y(), size.x(), size.y()};
}

std::int32_t HeightOf(Bytes dib) {
  ByteReader header(dib);
  const std::uint32_t size = header.U32();
  if (size == 12) {
    header.Skip(2);
    return header.U16();
  }
  header.Skip(4);
  return header.I32();
}

// Rows are counted from the bottom of a bitmap that is stored bottom up.
QRectF FromBottom(Bytes dib, QRectF source) {
  const std::int32_t height = HeightOf(dib);
  if (height > 0) source.moveTop(height - source.top() - source.height());
  return source;
}

void PatternBlock(WmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t rop = reader.U32();
  playback.Draw.Areas().PatternBlock(ReadSizeAndPlace(reader), rop);
}

void DrawDib(WmfPlayback& playback, ByteReader& reader, const QRectF& source, const QRectF& to,
             std::uint32_t rop, std::uint32_t usage) {
  if (!UsesSource(rop)) return playback.Draw.Areas().PatternBlock(to, rop);
  playback.Draw.Images().Block(
      {playback.Bitmaps.DecodePacked(reader.Rest(), usage, playback.Palette()), source, to, rop});
}

constexpr std::size_t BlockWithoutBitmap = 18;    // parameters of a copy that names no bitmap
constexpr std::size_t StretchWithoutBitmap = 22;  // the same, stretched

void DibBitBlock(WmfPlayback& playback, ByteReader& reader) {
  const bool bare = reader.Left() <= BlockWithoutBitmap;
  const std::uint32_t rop = reader.U32();
  const QPointF from = ReadYX(reader);
  if (bare) reader.Skip(2);
  const QRectF to = ReadSizeAndPlace(reader);
  if (bare && UsesSource(rop)) throw SkipRecord();
  DrawDib(playback, reader, {from, to.size()}, to, rop, 0);
}

void DibStretchBlock(WmfPlayback& playback, ByteReader& reader) {
  const bool bare = reader.Left() <= StretchWithoutBitmap;
  const std::uint32_t rop = reader.U32();
  const QRectF from = ReadSizeAndPlace(reader);
  if (bare) reader.Skip(2);
  const QRectF to = ReadSizeAndPlace(reader);
  if (bare && UsesSource(rop)) throw SkipRecord();
  DrawDib(playback, reader, from, to, rop, 0);
}

void StretchDib(WmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t rop = reader.U32();
  const std::uint32_t usage = reader.U16();
  const QRectF from = ReadSizeAndPlace(reader);
  const QRectF to = ReadSizeAndPlace(reader);
  if (!UsesSource(rop)) return playback.Draw.Areas().PatternBlock(to, rop);
  const Bytes dib = reader.Rest();
  playback.Draw.Images().Block(
      {playback.Bitmaps.DecodePacked(dib, usage, playback.Palette()), FromBottom(dib, from), to, rop});
}

void SetDibToDevice(WmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t usage = reader.U16();
  reader.Skip(4);
  const QPointF from = ReadYX(reader);
  const QRectF to = ReadSizeAndPlace(reader);
  const Bytes dib = reader.Rest();
  playback.Draw.Images().Block({playback.Bitmaps.DecodePacked(dib, usage, playback.Palette()),
                                FromBottom(dib, {from, to.size()}), to, SourceCopy});
}

// A bitmap in the oldest form, rows from the top. Those with a palette depend on a device.
QImage ReadOldBitmap(ByteReader& reader, const DcState& state) {
  constexpr std::pair<int, QImage::Format> formats[] = {{1, QImage::Format_Mono},
                                                        {16, QImage::Format_RGB555},
                                                        {24, QImage::Format_BGR888},
                                                        {32, QImage::Format_RGB32}};
  const auto [width, height, rowSize, bits] = ReadOldBitmapHead(reader);
  const auto format = std::ranges::find(formats, bits, &std::pair<int, QImage::Format>::first);
  if (format == std::end(formats)) throw SkipRecord();
  const auto used = static_cast<std::size_t>((width * bits + 7) / 8);
  if (rowSize < used || reader.Left() < rowSize * static_cast<std::size_t>(height)) throw SkipRecord();
  QImage image(width, height, format->second);
  if (image.isNull()) throw SkipRecord();
  if (bits == 1) image.setColorTable({state.TextColor.rgb(), state.BackgroundColor.rgb()});
  for (int y = 0; y < height; ++y) std::ranges::copy(reader.Take(rowSize).first(used), image.scanLine(y));
  return image;
}

void OldBitBlock(WmfPlayback& playback, ByteReader& reader, bool stretch) {
  const bool bare = reader.Left() <= (stretch ? StretchWithoutBitmap : BlockWithoutBitmap);
  const std::uint32_t rop = reader.U32();
  QRectF from = stretch ? ReadSizeAndPlace(reader) : QRectF(ReadYX(reader), QSizeF());
  if (bare) reader.Skip(2);
  const QRectF to = ReadSizeAndPlace(reader);
  if (!stretch) from.setSize(to.size());
  if (!UsesSource(rop)) return playback.Draw.Areas().PatternBlock(to, rop);
  if (bare) throw SkipRecord();
  playback.Draw.Images().Block({ReadOldBitmap(reader, playback.Draw.State()), from, to, rop});
}

constexpr WmfRecord Records[] = {
    {Meta::PatBlt, PatternBlock},
    {Meta::BitBlt, [](WmfPlayback& playback, ByteReader& reader) { OldBitBlock(playback, reader, false); }},
    {Meta::DibBitBlt, DibBitBlock},
    {Meta::StretchBlt,
     [](WmfPlayback& playback, ByteReader& reader) { OldBitBlock(playback, reader, true); }},
    {Meta::DibStretchBlt, DibStretchBlock},
    {Meta::SetDibToDev, SetDibToDevice},
    {Meta::StretchDib, StretchDib},
};

}  // namespace

std::span<const WmfRecord> WmfImageRecords() {
  return Records;
}

}  // namespace tarvis
