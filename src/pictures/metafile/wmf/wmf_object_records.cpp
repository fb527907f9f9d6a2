#include <algorithm>

#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t MostObjects = 0x10000;

void CreatePen(WmfPlayback& p, ByteReader& r) {
  auto pen = std::make_shared<MetaPen>();
  pen->Style = r.U16();
  pen->Width = r.I16();
  r.Skip(2);
  pen->Ink.Color = ReadColor(r, p.Palette());
  p.Add(PenPtr(pen));
}

void CreateBrush(WmfPlayback& p, ByteReader& r) {
  const std::uint32_t style = r.U16();
  const QColor color = ReadColor(r, p.Palette());
  const std::uint32_t hatch = r.Left() >= 2 ? r.U16() : 0;
  p.Add(BrushPtr(std::make_shared<MetaBrush>(MakeMetaBrush(style, color, hatch))));
}

std::u16string FaceName(ByteReader& r) {
  Bytes name = r.Take(std::min<std::size_t>(r.Left(), 32));
  name = name.first(static_cast<std::size_t>(std::ranges::find(name, 0) - name.begin()));
  std::u16string face;
  for (const TextCharacter& character : DecodeText(name, 0)) face += static_cast<char16_t>(character.Code);
  return face;
}

void CreateFont(WmfPlayback& p, ByteReader& r) {
  auto font = std::make_shared<MetaFont>();
  font->Height = r.I16();
  font->Width = r.I16();
  font->Escapement = r.I16() / 10.0;
  font->Orientation = r.I16() / 10.0;
  font->Weight = r.I16();
  font->Italic = r.U8() != 0;
  font->Underline = r.U8() != 0;
  font->StrikeOut = r.U8() != 0;
  font->Charset = r.U8();
  r.Skip(std::min<std::size_t>(r.Left(), 4));
  font->Face = FaceName(r);
  p.Add(FontPtr(font));
}

void CreatePalette(WmfPlayback& p, ByteReader& r) {
  r.Skip(2);
  const std::size_t count = r.U16();
  p.Add(PalettePtr(std::make_shared<MetaPalette>(ReadPalette(r, count))));
}

void CreateDibPattern(WmfPlayback& p, ByteReader& r) {
  enum : std::uint16_t { Bitmap16 = 3 };
  const std::uint16_t style = r.U16();
  const std::uint32_t usage = r.U16();
  auto brush = std::make_shared<MetaBrush>();
  brush->Is = MetaBrush::Kind::Pattern;
  brush->Pattern = p.Bitmaps.DecodePacked(r.Rest(), usage, p.Palette());
  brush->UsesTextColors = style == Bitmap16 && brush->Pattern.colorCount() == 2;
  p.Add(BrushPtr(brush));
}

// A bitmap of one bit a pixel in the oldest form, as pattern of 8 by 8.
void CreatePattern(WmfPlayback& p, ByteReader& r) {
  r.Skip(2);
  const int width = r.I16();
  const int height = r.I16();
  const std::size_t rowSize = r.U16();
  const int planes = r.U8();
  const int bits = r.U8();
  if (planes != 1 || bits != 1 || width < 1 || width > 256 || height < 1 || height > 256) throw SkipRecord();
  r.Skip(4 + 18);  // a pointer, and room that is not used
  auto brush = std::make_shared<MetaBrush>();
  brush->Is = MetaBrush::Kind::Pattern;
  brush->UsesTextColors = true;
  brush->Pattern = QImage(width, height, QImage::Format_Indexed8);
  brush->Pattern.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
  for (int y = 0; y < height; ++y) {
    const Bytes row = r.Take(rowSize);
    for (int x = 0; x < width; ++x)
      brush->Pattern.setPixel(x, y, Slice(row, static_cast<std::size_t>(x / 8), 1)[0] >> (7 - x % 8) & 1);
  }
  p.Add(BrushPtr(brush));
}

MetaRegion ReadRegion(ByteReader& r) {
  r.Skip(10);
  const std::size_t scans = r.U16();
  r.Skip(10);
  MetaRegion region;
  for (std::size_t i = 0; i < scans; ++i) {
    const std::size_t edges = r.U16();
    const double top = r.I16();
    const double bottom = r.I16();
    for (std::size_t edge = 0; edge + 1 < edges; edge += 2) {
      const double left = r.I16();
      region.push_back(BoxOf({left, top}, {static_cast<double>(r.I16()), bottom}));
    }
    r.Skip(2);
  }
  return region;
}

const MetaRegion& RegionAt(const WmfPlayback& p, std::size_t index) {
  const auto* region = std::get_if<RegionPtr>(&p.Object(index));
  if (region == nullptr) throw SkipRecord();
  return **region;
}

const MetaBrush& BrushAt(const WmfPlayback& p, std::size_t index) {
  const auto* brush = std::get_if<BrushPtr>(&p.Object(index));
  if (brush == nullptr) throw SkipRecord();
  return **brush;
}

void SelectClipRegion(WmfPlayback& p, std::size_t index) {
  if (index == 0 && (p.Objects.empty() || !std::holds_alternative<RegionPtr>(p.Objects[0])))
    return p.Draw.ResetClip();
  p.Draw.SelectClip(p.Draw.Dc().ToDevice().map(p.Draw.RegionPath(RegionAt(p, index))), ClipMode::Copy);
}

void SelectObject(WmfPlayback& p, ByteReader& r) {
  const std::size_t index = r.U16();
  if (std::holds_alternative<RegionPtr>(p.Object(index))) return SelectClipRegion(p, index);
  p.Draw.Select(p.Object(index));
}

void SetPaletteEntries(WmfPlayback& p, ByteReader& r) {
  const std::size_t start = r.U16();
  const MetaPalette entries = ReadPalette(r, r.U16());
  auto palette = std::make_shared<MetaPalette>(p.Palette());
  for (std::size_t i = 0; i < entries.size() && start + i < palette->size(); ++i)
    (*palette)[start + i] = entries[i];
  p.Draw.State().Palette = palette;
}

void FillRegion(WmfPlayback& p, ByteReader& r) {
  const MetaRegion& region = RegionAt(p, r.U16());
  p.Draw.FillRegion(region, BrushAt(p, r.U16()));
}

void FrameRegion(WmfPlayback& p, ByteReader& r) {
  const MetaRegion& region = RegionAt(p, r.U16());
  const MetaBrush& brush = BrushAt(p, r.U16());
  const QPointF size = ReadYX(r);
  p.Draw.FrameRegion(region, brush, {size.x(), size.y()});
}

constexpr WmfRecord Records[] = {
    {Meta::RealizePalette, nullptr},  // makes the palette the screen's
    {Meta::SetPalEntries, SetPaletteEntries},
    {Meta::CreatePalette, CreatePalette},
    {Meta::InvertRegion, [](WmfPlayback& p, ByteReader& r) { p.Draw.InvertRegion(RegionAt(p, r.U16())); }},
    {Meta::PaintRegion,
     [](WmfPlayback& p, ByteReader& r) { p.Draw.FillRegion(RegionAt(p, r.U16()), *p.Draw.State().Brush); }},
    {Meta::SelectClipRegion, [](WmfPlayback& p, ByteReader& r) { SelectClipRegion(p, r.U16()); }},
    {Meta::SelectObject, SelectObject},
    {Meta::ResizePalette, nullptr},  // size of the palette
    {Meta::DibCreatePatternBrush, CreateDibPattern},
    {Meta::DeleteObject, [](WmfPlayback& p, ByteReader& r) { p.Delete(r.U16()); }},
    {Meta::CreatePatternBrush, CreatePattern},
    {Meta::FillRegion, FillRegion},
    {Meta::SelectPalette, [](WmfPlayback& p, ByteReader& r) { p.Draw.Select(p.Object(r.U16())); }},
    {Meta::CreatePenIndirect, CreatePen},
    {Meta::CreateFontIndirect, CreateFont},
    {Meta::CreateBrushIndirect, CreateBrush},
    {Meta::FrameRegion, FrameRegion},
    {Meta::AnimatePalette, SetPaletteEntries},
    {Meta::CreateRegion,
     [](WmfPlayback& p, ByteReader& r) {
       try {
         p.Add(RegionPtr(std::make_shared<MetaRegion>(ReadRegion(r))));
       } catch (const OutOfBytes&) {
         throw SkipRecord();  // some writers miscount the lines; the drawing goes on without it
       }
     }},
};

}  // namespace

void WmfPlayback::Add(MetaObject object) {
  const auto index = static_cast<std::size_t>(std::ranges::find(Taken, false) - Taken.begin());
  if (index >= MostObjects) throw BadMetafile("it has too many objects");
  if (index == Objects.size()) {
    Objects.emplace_back();
    Taken.push_back(false);
  }
  Objects[index] = std::move(object);
  Taken[index] = true;
}

void WmfPlayback::Delete(std::size_t index) {
  if (index >= Objects.size()) throw SkipRecord();
  Objects[index] = {};
  Taken[index] = false;
}

const MetaObject& WmfPlayback::Object(std::size_t index) const {
  if (index >= Objects.size()) throw SkipRecord();
  return Objects[index];
}

std::span<const WmfRecord> WmfObjectRecords() {
  return Records;
}

}  // namespace tarvis
