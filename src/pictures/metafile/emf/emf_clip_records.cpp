#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t BoundsSize = 16;

ClipMode ReadMode(ByteReader& r) {
  const std::uint32_t mode = r.U32();
  if (mode < 1 || mode > 5) throw SkipRecord();
  return static_cast<ClipMode>(mode);
}

void ExtSelectClipRegion(EmfPlayback& p, ByteReader& r) {
  const std::size_t size = r.U32();
  const ClipMode mode = ReadMode(r);
  if (size == 0) {
    if (mode == ClipMode::Copy) p.Draw.ResetClip();
    return;
  }
  p.Draw.SelectClip(p.Draw.RegionPath(ReadEmfRegion(r, size)), mode);
}

const MetaBrush& BrushAt(EmfPlayback& p, MetaObject& holder, std::uint32_t index) {
  holder = p.Object(index);
  const auto* brush = std::get_if<BrushPtr>(&holder);
  if (brush == nullptr) throw SkipRecord();
  return **brush;
}

void FillRegion(EmfPlayback& p, ByteReader& r) {
  r.Skip(BoundsSize);
  const std::size_t size = r.U32();
  MetaObject holder;
  const MetaBrush& brush = BrushAt(p, holder, r.U32());
  p.Draw.FillRegion(ReadEmfRegion(r, size), brush);
}

void FrameRegion(EmfPlayback& p, ByteReader& r) {
  r.Skip(BoundsSize);
  const std::size_t size = r.U32();
  MetaObject holder;
  const MetaBrush& brush = BrushAt(p, holder, r.U32());
  const QPointF stroke = ReadPoint32(r);
  p.Draw.FrameRegion(ReadEmfRegion(r, size), brush, {stroke.x(), stroke.y()});
}

void InvertRegion(EmfPlayback& p, ByteReader& r) {
  r.Skip(BoundsSize);
  const std::size_t size = r.U32();
  p.Draw.InvertRegion(ReadEmfRegion(r, size));
}

void PaintRegion(EmfPlayback& p, ByteReader& r) {
  r.Skip(BoundsSize);
  const std::size_t size = r.U32();
  p.Draw.FillRegion(ReadEmfRegion(r, size), *p.Draw.State().Brush);
}

constexpr EmfRecord Records[] = {
    {Emr::OffsetClipRgn, [](EmfPlayback& p, ByteReader& r) { p.Draw.OffsetClip(ReadPoint32(r)); }},
    {Emr::SetMetaRgn, [](EmfPlayback& p, ByteReader&) { p.Draw.SetMetaClip(); }},
    {Emr::ExcludeClipRect, [](EmfPlayback& p, ByteReader& r) { p.Draw.ExcludeClip(ReadBox(r)); }},
    {Emr::IntersectClipRect, [](EmfPlayback& p, ByteReader& r) { p.Draw.IntersectClip(ReadBox(r)); }},
    {Emr::SelectClipPath, [](EmfPlayback& p, ByteReader& r) { p.Draw.ClipToPath(ReadMode(r)); }},
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
