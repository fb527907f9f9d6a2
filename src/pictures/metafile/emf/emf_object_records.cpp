#include "pictures/metafile/context/stock_objects.h"
#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t MostObjects = 0x10000;
constexpr std::size_t MostDashes = 64;

void Keep(EmfPlayback& p, std::uint32_t index, MetaObject object) {
  if (p.Objects.size() >= MostObjects) throw SkipRecord();
  p.Objects[index] = std::move(object);
}

void CreatePen(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t index = r.U32();
  auto pen = std::make_shared<MetaPen>();
  pen->Style = r.U32();
  pen->Width = r.I32();
  r.Skip(4);
  pen->Ink.Color = ReadColor(r, p.Palette());
  Keep(p, index, PenPtr(pen));
}

struct BitmapPlace {
  explicit BitmapPlace(ByteReader& r)
      : InfoOffset(r.U32()), InfoSize(r.U32()), BitsOffset(r.U32()), BitsSize(r.U32()) {}
  std::uint32_t InfoOffset, InfoSize, BitsOffset, BitsSize;
};

QImage DecodePattern(EmfPlayback& p, const ByteReader& r, const BitmapPlace& at, std::uint32_t usage) {
  return p.Bitmaps.Decode(Slice(r.All(), at.InfoOffset, at.InfoSize),
                          Slice(r.All(), at.BitsOffset, at.BitsSize), usage, p.Palette());
}

void ExtCreatePen(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t index = r.U32();
  const BitmapPlace pattern(r);
  auto pen = std::make_shared<MetaPen>();
  pen->Extended = true;
  pen->Style = r.U32();
  pen->Width = r.U32();
  const std::uint32_t brushStyle = r.U32();
  const QColor color = ReadColor(r, p.Palette());
  const std::uint32_t hatch = r.U32();
  const std::size_t dashes = r.Left() >= 4 ? r.U32() : 0;
  if ((pen->Style & penstyle::StyleMask) == penstyle::User)
    for (std::size_t i = 0; i < std::min(dashes, MostDashes); ++i) pen->Dashes.push_back(r.U32());
  // Lines hatched or patterned are drawn in their colour.
  pen->Ink = MakeMetaBrush(brushStyle == 1 ? 1 : 0, color, hatch);
  if (brushStyle > 2 && pattern.BitsSize > 0) {
    pen->Ink.Is = MetaBrush::Kind::Pattern;
    pen->Ink.Pattern = DecodePattern(p, r, pattern, hatch);
  }
  Keep(p, index, PenPtr(pen));
}

void CreateBrush(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t index = r.U32();
  const std::uint32_t style = r.U32();
  const QColor color = ReadColor(r, p.Palette());
  Keep(p, index, BrushPtr(std::make_shared<MetaBrush>(MakeMetaBrush(style, color, r.U32()))));
}

void CreatePatternBrush(EmfPlayback& p, ByteReader& r, bool mono) {
  const std::uint32_t index = r.U32();
  const std::uint32_t usage = r.U32();
  const BitmapPlace pattern(r);
  auto brush = std::make_shared<MetaBrush>();
  brush->Is = MetaBrush::Kind::Pattern;
  brush->Pattern = DecodePattern(p, r, pattern, usage);
  brush->UsesTextColors = mono;
  Keep(p, index, BrushPtr(brush));
}

void CreateFont(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t index = r.U32();
  auto font = std::make_shared<MetaFont>();
  font->Height = r.I32();
  font->Width = r.I32();
  font->Escapement = r.I32() / 10.0;
  font->Orientation = r.I32() / 10.0;
  font->Weight = r.I32();
  font->Italic = r.U8() != 0;
  font->Underline = r.U8() != 0;
  font->StrikeOut = r.U8() != 0;
  font->Charset = r.U8();
  r.Skip(4);
  for (int i = 0; i < 32 && r.Left() >= 2; ++i) {
    const char16_t unit = r.U16();
    if (unit == 0) break;
    font->Face += unit;
  }
  Keep(p, index, FontPtr(font));
}

void CreatePalette(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t index = r.U32();
  r.Skip(2);
  const std::size_t count = r.U16();
  Keep(p, index, PalettePtr(std::make_shared<MetaPalette>(ReadPalette(r, count))));
}

// The palette that an index names, to be changed; contexts that selected it see the change.
MetaPalette& Changeable(EmfPlayback& p, std::uint32_t index) {
  const auto found = p.Objects.find(index);
  if (found == p.Objects.end()) throw SkipRecord();
  const auto* palette = std::get_if<PalettePtr>(&found->second);
  if (palette == nullptr) throw SkipRecord();
  const bool selected = p.Draw.State().Palette == *palette;
  auto copy = std::make_shared<MetaPalette>(**palette);
  found->second = PalettePtr(copy);
  if (selected) p.Draw.State().Palette = copy;
  return *copy;
}

void SetPaletteEntries(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t index = r.U32();
  const std::size_t start = r.U32();
  const std::size_t count = r.U32();
  if (count > 0x10000) throw OutOfBytes();
  const MetaPalette entries = ReadPalette(r, count);
  MetaPalette& palette = Changeable(p, index);
  for (std::size_t i = 0; i < count && start + i < palette.size(); ++i) palette[start + i] = entries[i];
}

void ResizePalette(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t index = r.U32();
  const std::size_t count = r.U32();
  if (count > 0x400) throw SkipRecord();
  Changeable(p, index).resize(count, qRgb(0, 0, 0));
}

constexpr EmfRecord Records[] = {
    {Emr::SelectObject, [](EmfPlayback& p, ByteReader& r) { p.Draw.Select(p.Object(r.U32())); }},
    {Emr::CreatePen, CreatePen},
    {Emr::CreateBrushIndirect, CreateBrush},
    {Emr::DeleteObject, [](EmfPlayback& p, ByteReader& r) { p.Objects.erase(r.U32()); }},
    {Emr::SelectPalette, [](EmfPlayback& p, ByteReader& r) { p.Draw.Select(p.Object(r.U32())); }},
    {Emr::CreatePalette, CreatePalette},
    {Emr::SetPaletteEntries, SetPaletteEntries},
    {Emr::ResizePalette, ResizePalette},
    {Emr::RealizePalette, nullptr},  // makes the palette the screen's
    {Emr::ExtCreateFontIndirectW, CreateFont},
    {Emr::CreateMonoBrush, [](EmfPlayback& p, ByteReader& r) { CreatePatternBrush(p, r, true); }},
    {Emr::CreateDibPatternBrushPt, [](EmfPlayback& p, ByteReader& r) { CreatePatternBrush(p, r, false); }},
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
