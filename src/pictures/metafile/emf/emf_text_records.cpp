#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t BoundsSize = 16;

// Widths of characters; a place past the record means none.
void ReadAdvances(const ByteReader& record, std::size_t offset, std::size_t count, TextRecord& text) {
  const bool pairs = (text.Options & TextPairs) != 0;
  if (offset == 0 || offset >= record.All().size()) return;
  ByteReader r(Slice(record.All(), offset, count * (pairs ? 8 : 4)));
  for (std::size_t i = 0; i < count; ++i) {
    text.Advances.push_back(r.I32());
    if (pairs) text.Rises.push_back(r.I32());
  }
}

// The text object that all text records but the small one share.
TextRecord ReadText(EmfPlayback& p, ByteReader& r, bool wide) {
  TextRecord text;
  text.Reference = ReadPoint32(r);
  const std::size_t count = r.U32();
  const std::size_t offset = r.U32();
  text.Options = r.U32();
  text.Box = ReadBox(r);
  const std::size_t advances = r.U32();
  const Bytes bytes = count == 0 ? Bytes() : Slice(r.All(), offset, count * (wide ? 2 : 1));
  text.Text = wide ? DecodeUnits(bytes) : DecodeText(bytes, p.Draw.State().Font->Charset);
  ReadAdvances(r, advances, count, text);
  return text;
}

template <bool Wide>
void ExtTextOut(EmfPlayback& p, ByteReader& r) {
  r.Skip(BoundsSize + 12);
  p.Draw.Text(ReadText(p, r, Wide));
}

template <bool Wide>
void PolyTextOut(EmfPlayback& p, ByteReader& r) {
  r.Skip(BoundsSize + 12);
  const std::size_t count = r.U32();
  for (std::size_t i = 0; i < count; ++i) p.Draw.Text(ReadText(p, r, Wide));
}

void SmallTextOut(EmfPlayback& p, ByteReader& r) {
  TextRecord text;
  text.Reference = ReadPoint32(r);
  const std::size_t count = r.U32();
  text.Options = r.U32();
  r.Skip(12);
  if ((text.Options & TextNoBox) == 0) text.Box = ReadBox(r);
  const bool small = (text.Options & TextSmall) != 0;
  const Bytes bytes = r.Take(count * (small ? 1 : 2));
  text.Text = small ? DecodeText(bytes, p.Draw.State().Font->Charset) : DecodeUnits(bytes);
  p.Draw.Text(text);
}

constexpr EmfRecord Records[] = {
    {Emr::ExtTextOutA, ExtTextOut<false>},   {Emr::ExtTextOutW, ExtTextOut<true>},
    {Emr::PolyTextOutA, PolyTextOut<false>}, {Emr::PolyTextOutW, PolyTextOut<true>},
    {Emr::SmallTextOut, SmallTextOut},
};

}  // namespace

std::span<const EmfRecord> EmfTextRecords() {
  return Records;
}

}  // namespace tarvis
