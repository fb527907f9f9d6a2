// Records of enhanced metafiles that create and select objects: pens, brushes, fonts, palettes.
#include "pictures/metafile/context/stock_objects.h"
#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t MostObjects = 0x10000;
constexpr std::size_t MostDashes = 64;

void Keep(EmfPlayback& playback, std::uint32_t index, MetaObject object) {
  if (playback.Objects.size() >= MostObjects) throw SkipRecord();
  playback.Objects[index] = std::move(object);
}

void CreatePen(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t index = reader.U32();
  auto pen = std::make_shared<MetaPen>();
  pen->Style = reader.U32();
  pen->Width = reader.I32();
  reader.Skip(4);
  pen->Ink.Color = ReadColor(reader, playback.Palette());
  Keep(playback, index, PenPtr(pen));
}

struct BitmapPlace {
  explicit BitmapPlace(ByteReader& reader)
      : InfoOffset(reader.U32()), InfoSize(reader.U32()), BitsOffset(reader.U32()), BitsSize(reader.U32()) {}
  std::uint32_t InfoOffset, InfoSize, BitsOffset, BitsSize;
};

QImage DecodePattern(EmfPlayback& playback, const ByteReader& reader, const BitmapPlace& at,
                     std::uint32_t usage) {
  return playback.Bitmaps.Decode(Slice(reader.All(), at.InfoOffset, at.InfoSize),
                                 Slice(reader.All(), at.BitsOffset, at.BitsSize), usage, playback.Palette());
}

void ExtCreatePen(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t index = reader.U32();
  const BitmapPlace pattern(reader);
  auto pen = std::make_shared<MetaPen>();
  pen->Extended = true;
  pen->Style = reader.U32();
  pen->Width = reader.U32();
  const std::uint32_t brushStyle = reader.U32();
  const QColor color = ReadColor(reader, playback.Palette());
  const std::uint32_t hatch = reader.U32();
  const std::size_t dashes = reader.Left() >= 4 ? reader.U32() : 0;
  if ((pen->Style & penstyle::StyleMask) == penstyle::User)
    for (std::size_t i = 0; i < std::min(dashes, MostDashes); ++i) pen->Dashes.push_back(reader.U32());
  // Lines hatched or patterned are drawn in their colour.
  pen->Ink = MakeMetaBrush(brushStyle == 1 ? 1 : 0, color, hatch);
  if (brushStyle > 2 && pattern.BitsSize > 0) {
    pen->Ink.Is = MetaBrush::Kind::Pattern;
    pen->Ink.Pattern = DecodePattern(playback, reader, pattern, hatch);
  }
  Keep(playback, index, PenPtr(pen));
}

void CreateBrush(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t index = reader.U32();
  const std::uint32_t style = reader.U32();
  const QColor color = ReadColor(reader, playback.Palette());
  Keep(playback, index, BrushPtr(std::make_shared<MetaBrush>(MakeMetaBrush(style, color, reader.U32()))));
}

void CreatePatternBrush(EmfPlayback& playback, ByteReader& reader, bool mono) {
  const std::uint32_t index = reader.U32();
  const std::uint32_t usage = reader.U32();
  const BitmapPlace pattern(reader);
  auto brush = std::make_shared<MetaBrush>();
  brush->Is = MetaBrush::Kind::Pattern;
  brush->Pattern = DecodePattern(playback, reader, pattern, usage);
  brush->UsesTextColors = mono;
  Keep(playback, index, BrushPtr(brush));
}

void CreateFont(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t index = reader.U32();
  auto font = std::make_shared<MetaFont>();
  font->Height = reader.I32();
  font->Width = reader.I32();
  font->Escapement = reader.I32() / 10.0;
  font->Orientation = reader.I32() / 10.0;
  font->Weight = reader.I32();
  font->Italic = reader.U8() != 0;
  font->Underline = reader.U8() != 0;
  font->StrikeOut = reader.U8() != 0;
  font->Charset = reader.U8();
  reader.Skip(4);
  for (int i = 0; i < 32 && reader.Left() >= 2; ++i) {
    const char16_t unit = reader.U16();
    if (unit == 0) break;
    font->Face += unit;
  }
  Keep(playback, index, FontPtr(font));
}

void CreatePalette(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t index = reader.U32();
  reader.Skip(2);
  const std::size_t count = reader.U16();
  Keep(playback, index, PalettePtr(std::make_shared<MetaPalette>(ReadPalette(reader, count))));
}

// The palette that an index names, to be changed; contexts that selected it see the change.
MetaPalette& Changeable(EmfPlayback& playback, std::uint32_t index) {
  const auto found = playback.Objects.find(index);
  if (found == playback.Objects.end()) throw SkipRecord();
  const auto* palette = std::get_if<PalettePtr>(&found->second);
  if (palette == nullptr) throw SkipRecord();
  const bool selected = playback.Draw.State().Palette == *palette;
  auto copy = std::make_shared<MetaPalette>(**palette);
  found->second = PalettePtr(copy);
  if (selected) playback.Draw.State().Palette = copy;
  return *copy;
}

void SetPaletteEntries(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t index = reader.U32();
  const std::size_t start = reader.U32();
  const std::size_t count = reader.U32();
  if (count > 0x10000) throw OutOfBytes();
  const MetaPalette entries = ReadPalette(reader, count);
  MetaPalette& palette = Changeable(playback, index);
  for (std::size_t i = 0; i < count && start + i < palette.size(); ++i) palette[start + i] = entries[i];
}

void ResizePalette(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t index = reader.U32();
  const std::size_t count = reader.U32();
  if (count > 0x400) throw SkipRecord();
  Changeable(playback, index).resize(count, qRgb(0, 0, 0));
}

constexpr EmfRecord Records[] = {
    {Emr::SelectObject,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Select(playback.Object(reader.U32())); }},
    {Emr::CreatePen, CreatePen},
    {Emr::CreateBrushIndirect, CreateBrush},
    {Emr::DeleteObject,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Objects.erase(reader.U32()); }},
    {Emr::SelectPalette,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Select(playback.Object(reader.U32())); }},
    {Emr::CreatePalette, CreatePalette},
    {Emr::SetPaletteEntries, SetPaletteEntries},
    {Emr::ResizePalette, ResizePalette},
    {Emr::RealizePalette, nullptr},  // makes the palette the screen's
    {Emr::ExtCreateFontIndirectW, CreateFont},
    {Emr::CreateMonoBrush,
     [](EmfPlayback& playback, ByteReader& reader) { CreatePatternBrush(playback, reader, true); }},
    {Emr::CreateDibPatternBrushPt,
     [](EmfPlayback& playback, ByteReader& reader) { CreatePatternBrush(playback, reader, false); }},
    {Emr::ExtCreatePen, ExtCreatePen},
};

}  // namespace

MetaObject EmfPlayback::Object(std::uint32_t index) const {
  if ((index & StockObjectBit) != 0) return StockObject(index & ~StockObjectBit);
  const auto found = Objects.find(index);
  if (found == Objects.end()) throw SkipRecord();
  return found->second;
}

std::span<const EmfRecord> EmfObjectRecords() {
  return Records;
}

}  // namespace tarvis
