// Records of enhanced metafiles that set the clip, or fill regions.
#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

ClipMode ReadMode(ByteReader& reader) {
  const std::uint32_t mode = reader.U32();
  if (mode < 1 || mode > 5) throw SkipRecord();
  return static_cast<ClipMode>(mode);
}

void ExtSelectClipRegion(EmfPlayback& playback, ByteReader& reader) {
  const std::size_t size = reader.U32();
  const ClipMode mode = ReadMode(reader);
  if (size == 0) {
    if (mode == ClipMode::Copy) playback.Draw.Clip().Reset();
    return;
  }
  playback.Draw.Clip().Select(playback.Draw.Areas().RegionPath(ReadEmfRegion(reader, size)), mode);
}

const MetaBrush& BrushAt(EmfPlayback& playback, MetaObject& holder, std::uint32_t index) {
  holder = playback.Object(index);
  const auto* brush = std::get_if<BrushPtr>(&holder);
  if (brush == nullptr) throw SkipRecord();
  return **brush;
}

void FillRegion(EmfPlayback& playback, ByteReader& reader) {
  reader.Skip(BoundsSize);
  const std::size_t size = reader.U32();
  MetaObject holder;
  const MetaBrush& brush = BrushAt(playback, holder, reader.U32());
  playback.Draw.Areas().Region(ReadEmfRegion(reader, size), brush);
}

void FrameRegion(EmfPlayback& playback, ByteReader& reader) {
  reader.Skip(BoundsSize);
  const std::size_t size = reader.U32();
  MetaObject holder;
  const MetaBrush& brush = BrushAt(playback, holder, reader.U32());
  const QPointF stroke = ReadPoint32(reader);
  playback.Draw.Areas().FrameRegion(ReadEmfRegion(reader, size), brush, {stroke.x(), stroke.y()});
}

void InvertRegion(EmfPlayback& playback, ByteReader& reader) {
  reader.Skip(BoundsSize);
  const std::size_t size = reader.U32();
  playback.Draw.Areas().InvertRegion(ReadEmfRegion(reader, size));
}

void PaintRegion(EmfPlayback& playback, ByteReader& reader) {
  reader.Skip(BoundsSize);
  const std::size_t size = reader.U32();
  playback.Draw.Areas().Region(ReadEmfRegion(reader, size), *playback.Draw.State().Brush);
}

constexpr EmfRecord Records[] = {
    {Emr::OffsetClipRgn,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Clip().Offset(ReadPoint32(reader)); }},
    {Emr::SetMetaRgn, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Clip().KeepAsLeast(); }},
    {Emr::ExcludeClipRect,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Clip().Exclude(ReadBox(reader)); }},
    {Emr::IntersectClipRect,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Clip().Intersect(ReadBox(reader)); }},
    {Emr::SelectClipPath,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.ClipToPath(ReadMode(reader)); }},
    {Emr::FillRgn, FillRegion},
    {Emr::FrameRgn, FrameRegion},
    {Emr::InvertRgn, InvertRegion},
    {Emr::PaintRgn, PaintRegion},
    {Emr::ExtSelectClipRgn, ExtSelectClipRegion},
};

}  // namespace

MetaRegion ReadEmfRegion(ByteReader& reader, std::size_t size) {
  ByteReader region(reader.Take(size));
  const std::size_t headerSize = region.U32();
  region.Skip(4);
  const std::size_t count = region.U32();
  region.Seek(headerSize);
  ByteReader boxes(region.Take(count * 16));
  MetaRegion result;
  while (boxes.Left() > 0) result.push_back(ReadBox(boxes));
  return result;
}

std::span<const EmfRecord> EmfClipRecords() {
  return Records;
}

}  // namespace tarvis
