// Records of enhanced metafiles that draw text.
#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

// Widths of characters; a place past the record means none.
void ReadAdvances(const ByteReader& record, std::size_t offset, std::size_t count, TextRecord& text) {
  const bool pairs = (text.Options & TextPairs) != 0;
  if (offset == 0 || offset >= record.All().size()) return;
  ByteReader reader(Slice(record.All(), offset, count * (pairs ? 8 : 4)));
  for (std::size_t i = 0; i < count; ++i) {
    text.Advances.push_back(reader.I32());
    if (pairs) text.Rises.push_back(reader.I32());
  }
}

// The text object that all text records but the small one share.
TextRecord ReadText(EmfPlayback& playback, ByteReader& reader, bool wide) {
  TextRecord text;
  text.Reference = ReadPoint32(reader);
  const std::size_t count = reader.U32();
  const std::size_t offset = reader.U32();
  text.Options = reader.U32();
  text.Box = ReadBox(reader);
  const std::size_t advances = reader.U32();
  const Bytes bytes = count == 0 ? Bytes() : Slice(reader.All(), offset, count * (wide ? 2 : 1));
  text.Text = wide ? DecodeUnits(bytes) : DecodeText(bytes, playback.Draw.State().Font->Charset);
  ReadAdvances(reader, advances, count, text);
  return text;
}

template <bool Wide>
void ExtTextOut(EmfPlayback& playback, ByteReader& reader) {
  reader.Skip(BoundsSize + 12);
  playback.Draw.Text().Text(ReadText(playback, reader, Wide));
}

template <bool Wide>
void PolyTextOut(EmfPlayback& playback, ByteReader& reader) {
  reader.Skip(BoundsSize + 12);
  const std::size_t count = reader.U32();
  for (std::size_t i = 0; i < count; ++i) playback.Draw.Text().Text(ReadText(playback, reader, Wide));
}

void SmallTextOut(EmfPlayback& playback, ByteReader& reader) {
  TextRecord text;
  text.Reference = ReadPoint32(reader);
  const std::size_t count = reader.U32();
  text.Options = reader.U32();
  reader.Skip(12);
  if ((text.Options & TextNoBox) == 0) text.Box = ReadBox(reader);
  const bool small = (text.Options & TextSmall) != 0;
  const Bytes bytes = reader.Take(count * (small ? 1 : 2));
  text.Text = small ? DecodeText(bytes, playback.Draw.State().Font->Charset) : DecodeUnits(bytes);
  playback.Draw.Text().Text(text);
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
