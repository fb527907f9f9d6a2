#include <algorithm>
#include <utility>

#include "pictures/metafile/context/raster_ops.h"
#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

// Height before width, and both before y and x, as destinations stand in records.
QRectF ReadSizeAndPlace(ByteReader& r) {
  const QPointF size = ReadYX(r);
  const QPointF at = ReadYX(r);
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

// Rows are counted from the bottom of a bitmap that stands bottom up.
QRectF FromBottom(Bytes dib, QRectF source) {
  const std::int32_t height = HeightOf(dib);
  if (height > 0) source.moveTop(height - source.top() - source.height());
  return source;
}

void PatternBlock(WmfPlayback& p, ByteReader& r) {
  const std::uint32_t rop = r.U32();
  p.Draw.PatternBlock(ReadSizeAndPlace(r), rop);
}

void DrawDib(WmfPlayback& p, ByteReader& r, const QRectF& source, const QRectF& to, std::uint32_t rop,
             std::uint32_t usage) {
  if (!UsesSource(rop)) return p.Draw.PatternBlock(to, rop);
  p.Draw.Block({p.Bitmaps.DecodePacked(r.Rest(), usage, p.Palette()), source, to, rop});
}

constexpr std::size_t BlockWithoutBitmap = 18;    // parameters of a copy that names no bitmap
constexpr std::size_t StretchWithoutBitmap = 22;  // the same, stretched

void DibBitBlock(WmfPlayback& p, ByteReader& r) {
  const bool bare = r.Left() <= BlockWithoutBitmap;
  const std::uint32_t rop = r.U32();
  const QPointF from = ReadYX(r);
  if (bare) r.Skip(2);
  const QRectF to = ReadSizeAndPlace(r);
  if (bare && UsesSource(rop)) throw SkipRecord();
  DrawDib(p, r, {from, to.size()}, to, rop, 0);
}

void DibStretchBlock(WmfPlayback& p, ByteReader& r) {
  const bool bare = r.Left() <= StretchWithoutBitmap;
  const std::uint32_t rop = r.U32();
  const QRectF from = ReadSizeAndPlace(r);
  if (bare) r.Skip(2);
  const QRectF to = ReadSizeAndPlace(r);
  if (bare && UsesSource(rop)) throw SkipRecord();
  DrawDib(p, r, from, to, rop, 0);
}

void StretchDib(WmfPlayback& p, ByteReader& r) {
  const std::uint32_t rop = r.U32();
  const std::uint32_t usage = r.U16();
  const QRectF from = ReadSizeAndPlace(r);
  const QRectF to = ReadSizeAndPlace(r);
  if (!UsesSource(rop)) return p.Draw.PatternBlock(to, rop);
  const Bytes dib = r.Rest();
  p.Draw.Block({p.Bitmaps.DecodePacked(dib, usage, p.Palette()), FromBottom(dib, from), to, rop});
}

void SetDibToDevice(WmfPlayback& p, ByteReader& r) {
  const std::uint32_t usage = r.U16();
  r.Skip(4);
  const QPointF from = ReadYX(r);
  const QRectF to = ReadSizeAndPlace(r);
  const Bytes dib = r.Rest();
  p.Draw.Block(
      {p.Bitmaps.DecodePacked(dib, usage, p.Palette()), FromBottom(dib, {from, to.size()}), to, SourceCopy});
}

// A bitmap in the oldest form, rows from the top. Those with a palette depend on a device.
QImage ReadOldBitmap(ByteReader& r, const DcState& state) {
  constexpr std::pair<int, QImage::Format> formats[] = {{1, QImage::Format_Mono},
                                                        {16, QImage::Format_RGB555},
                                                        {24, QImage::Format_BGR888},
                                                        {32, QImage::Format_RGB32}};
  r.Skip(2);
  const int width = r.I16();
  const int height = r.I16();
  const std::size_t rowSize = r.U16();
  const int planes = r.U8();
  const int bits = r.U8();
  const auto format = std::ranges::find(formats, bits, &std::pair<int, QImage::Format>::first);
  if (planes != 1 || format == std::end(formats) || width < 1 || height < 1) throw SkipRecord();
  const auto used = static_cast<std::size_t>((width * bits + 7) / 8);
  if (rowSize < used || r.Left() < rowSize * static_cast<std::size_t>(height)) throw SkipRecord();
  QImage image(width, height, format->second);
  if (image.isNull()) throw SkipRecord();
  if (bits == 1) image.setColorTable({state.TextColor.rgb(), state.BackgroundColor.rgb()});
  for (int y = 0; y < height; ++y) std::ranges::copy(r.Take(rowSize).first(used), image.scanLine(y));
  return image;
}

void OldBitBlock(WmfPlayback& p, ByteReader& r, bool stretch) {
  const bool bare = r.Left() <= (stretch ? StretchWithoutBitmap : BlockWithoutBitmap);
  const std::uint32_t rop = r.U32();
  QRectF from = stretch ? ReadSizeAndPlace(r) : QRectF(ReadYX(r), QSizeF());
  if (bare) r.Skip(2);
  const QRectF to = ReadSizeAndPlace(r);
  if (!stretch) from.setSize(to.size());
  if (!UsesSource(rop)) return p.Draw.PatternBlock(to, rop);
  if (bare) throw SkipRecord();
  p.Draw.Block({ReadOldBitmap(r, p.Draw.State()), from, to, rop});
}

constexpr WmfRecord Records[] = {
    {Meta::PatBlt, PatternBlock},
    {Meta::BitBlt, [](WmfPlayback& p, ByteReader& r) { OldBitBlock(p, r, false); }},
    {Meta::DibBitBlt, DibBitBlock},
    {Meta::StretchBlt, [](WmfPlayback& p, ByteReader& r) { OldBitBlock(p, r, true); }},
    {Meta::DibStretchBlt, DibStretchBlock},
    {Meta::SetDibToDev, SetDibToDevice},
    {Meta::StretchDib, StretchDib},
};

}  // namespace

std::span<const WmfRecord> WmfImageRecords() {
  return Records;
}

}  // namespace tarvis
