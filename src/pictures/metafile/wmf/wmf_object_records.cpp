// Records of old-style metafiles that create and select objects, regions among them, and fill regions.
#include <algorithm>

#include "pictures/metafile/wmf/old_bitmap.h"
#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t MostObjects = 0x10000;

void CreatePen(WmfPlayback& playback, ByteReader& reader) {
  auto pen = std::make_shared<MetaPen>();
  pen->Style = reader.U16();
  pen->Width = reader.I16();
  reader.Skip(2);
  pen->Ink.Color = ReadColor(reader, playback.Palette());
  playback.Add(PenPtr(pen));
}

void CreateBrush(WmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t style = reader.U16();
  const QColor color = ReadColor(reader, playback.Palette());
  const std::uint32_t hatch = reader.Left() >= 2 ? reader.U16() : 0;
  playback.Add(BrushPtr(std::make_shared<MetaBrush>(MakeMetaBrush(style, color, hatch))));
}

std::u16string FaceName(ByteReader& reader) {
  Bytes name = reader.Take(std::min<std::size_t>(reader.Left(), 32));
  name = name.first(static_cast<std::size_t>(std::ranges::find(name, 0) - name.begin()));
  std::u16string face;
  for (const TextCharacter& character : DecodeText(name, 0)) face += static_cast<char16_t>(character.Code);
  return face;
}

void CreateFont(WmfPlayback& playback, ByteReader& reader) {
  auto font = std::make_shared<MetaFont>();
  font->Height = reader.I16();
  font->Width = reader.I16();
  font->Escapement = reader.I16() / 10.0;
  font->Orientation = reader.I16() / 10.0;
  font->Weight = reader.I16();
  font->Italic = reader.U8() != 0;
  font->Underline = reader.U8() != 0;
  font->StrikeOut = reader.U8() != 0;
  font->Charset = reader.U8();
  reader.Skip(std::min<std::size_t>(reader.Left(), 4));
  font->Face = FaceName(reader);
  playback.Add(FontPtr(font));
}

void CreatePalette(WmfPlayback& playback, ByteReader& reader) {
  reader.Skip(2);
  const std::size_t count = reader.U16();
  playback.Add(PalettePtr(std::make_shared<MetaPalette>(ReadPalette(reader, count))));
}

void CreateDibPattern(WmfPlayback& playback, ByteReader& reader) {
  enum : std::uint16_t { Bitmap16 = 3 };
  const std::uint16_t style = reader.U16();
  const std::uint32_t usage = reader.U16();
  auto brush = std::make_shared<MetaBrush>();
  brush->Is = MetaBrush::Kind::Pattern;
  brush->Pattern = playback.Bitmaps.DecodePacked(reader.Rest(), usage, playback.Palette());
  brush->UsesTextColors = style == Bitmap16 && brush->Pattern.colorCount() == 2;
  playback.Add(BrushPtr(brush));
}

// A bitmap of one bit a pixel in the oldest form, as pattern of 8 by 8.
void CreatePattern(WmfPlayback& playback, ByteReader& reader) {
  const auto [width, height, rowSize, bits] = ReadOldBitmapHead(reader);
  if (bits != 1 || width > 256 || height > 256) throw SkipRecord();
  reader.Skip(4 + 18);  // a pointer, and room that is not used
  auto brush = std::make_shared<MetaBrush>();
  brush->Is = MetaBrush::Kind::Pattern;
  brush->UsesTextColors = true;
  brush->Pattern = QImage(width, height, QImage::Format_Indexed8);
  brush->Pattern.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
  for (int y = 0; y < height; ++y) {
    const Bytes row = reader.Take(rowSize);
    for (int x = 0; x < width; ++x)
      brush->Pattern.setPixel(x, y, Slice(row, static_cast<std::size_t>(x / 8), 1)[0] >> (7 - x % 8) & 1);
  }
  playback.Add(BrushPtr(brush));
}

MetaRegion ReadRegion(ByteReader& reader) {
  reader.Skip(10);
  const std::size_t scans = reader.U16();
  reader.Skip(10);
  MetaRegion region;
  for (std::size_t i = 0; i < scans; ++i) {
    const std::size_t edges = reader.U16();
    const double top = reader.I16();
    const double bottom = reader.I16();
    for (std::size_t edge = 0; edge + 1 < edges; edge += 2) {
      const double left = reader.I16();
      region.push_back(BoxOf({left, top}, {static_cast<double>(reader.I16()), bottom}));
    }
    reader.Skip(2);
  }
  return region;
}

const MetaRegion& RegionAt(const WmfPlayback& playback, std::size_t index) {
  const auto* region = std::get_if<RegionPtr>(&playback.Object(index));
  if (region == nullptr) throw SkipRecord();
  return **region;
}

const MetaBrush& BrushAt(const WmfPlayback& playback, std::size_t index) {
  const auto* brush = std::get_if<BrushPtr>(&playback.Object(index));
  if (brush == nullptr) throw SkipRecord();
  return **brush;
}

void SelectClipRegion(WmfPlayback& playback, std::size_t index) {
  if (index == 0 && (playback.Objects.empty() || !std::holds_alternative<RegionPtr>(playback.Objects[0])))
    return playback.Draw.Clip().Reset();
  playback.Draw.Clip().Select(
      playback.Draw.Context().ToDevice().map(playback.Draw.Areas().RegionPath(RegionAt(playback, index))),
      ClipMode::Copy);
}

void SelectObject(WmfPlayback& playback, ByteReader& reader) {
  const std::size_t index = reader.U16();
  if (std::holds_alternative<RegionPtr>(playback.Object(index))) return SelectClipRegion(playback, index);
  playback.Draw.Select(playback.Object(index));
}

void SetPaletteEntries(WmfPlayback& playback, ByteReader& reader) {
  const std::size_t start = reader.U16();
  const MetaPalette entries = ReadPalette(reader, reader.U16());
  auto palette = std::make_shared<MetaPalette>(playback.Palette());
  for (std::size_t i = 0; i < entries.size() && start + i < palette->size(); ++i)
    (*palette)[start + i] = entries[i];
  playback.Draw.State().Palette = palette;
}

void FillRegion(WmfPlayback& playback, ByteReader& reader) {
  const MetaRegion& region = RegionAt(playback, reader.U16());
  playback.Draw.Areas().Region(region, BrushAt(playback, reader.U16()));
}

void FrameRegion(WmfPlayback& playback, ByteReader& reader) {
  const MetaRegion& region = RegionAt(playback, reader.U16());
  const MetaBrush& brush = BrushAt(playback, reader.U16());
  const QPointF size = ReadYX(reader);
  playback.Draw.Areas().FrameRegion(region, brush, {size.x(), size.y()});
}

constexpr WmfRecord Records[] = {
    {Meta::RealizePalette, nullptr},  // makes the palette the screen's
    {Meta::SetPalEntries, SetPaletteEntries},
    {Meta::CreatePalette, CreatePalette},
    {Meta::InvertRegion,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Areas().InvertRegion(RegionAt(playback, reader.U16()));
     }},
    {Meta::PaintRegion,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Areas().Region(RegionAt(playback, reader.U16()), *playback.Draw.State().Brush);
     }},
    {Meta::SelectClipRegion,
     [](WmfPlayback& playback, ByteReader& reader) { SelectClipRegion(playback, reader.U16()); }},
    {Meta::SelectObject, SelectObject},
    {Meta::ResizePalette, nullptr},  // size of the palette
    {Meta::DibCreatePatternBrush, CreateDibPattern},
    {Meta::DeleteObject, [](WmfPlayback& playback, ByteReader& reader) { playback.Delete(reader.U16()); }},
    {Meta::CreatePatternBrush, CreatePattern},
    {Meta::FillRegion, FillRegion},
    {Meta::SelectPalette,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.Select(playback.Object(reader.U16())); }},
    {Meta::CreatePenIndirect, CreatePen},
    {Meta::CreateFontIndirect, CreateFont},
    {Meta::CreateBrushIndirect, CreateBrush},
    {Meta::FrameRegion, FrameRegion},
    {Meta::AnimatePalette, SetPaletteEntries},
    {Meta::CreateRegion,
     [](WmfPlayback& playback, ByteReader& reader) {
       try {
         playback.Add(RegionPtr(std::make_shared<MetaRegion>(ReadRegion(reader))));
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
