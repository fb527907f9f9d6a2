// Records of old-style metafiles that draw text.
#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

std::size_t Even(std::size_t size) {
  return size + size % 2;
}

void TextOut(WmfPlayback& playback, ByteReader& reader) {
  TextRecord text;
  const std::size_t length = reader.U16();
  const Bytes padded = reader.Take(Even(length));
  text.Reference = ReadYX(reader);
  text.Text = DecodeText(padded.first(length), playback.Draw.State().Font->Charset);
  text.Options = TextNoBox;
  playback.Draw.Text().Text(text);
}

void ExtTextOut(WmfPlayback& playback, ByteReader& reader) {
  TextRecord text;
  text.Reference = ReadYX(reader);
  const std::size_t length = reader.U16();
  text.Options = reader.U16();
  if ((text.Options & TextGlyphIndexes) != 0) throw SkipRecord();  // no writer is known to do so
  if ((text.Options & (TextOpaque | TextClipped)) != 0) {
    const QPointF leftTop = ReadPoint16(reader);
    text.Box = BoxOf(leftTop, ReadPoint16(reader));
  }
  const Bytes string = reader.Take(length);
  reader.Skip(std::min<std::size_t>(reader.Left(), length % 2));
  text.Text = DecodeText(string, playback.Draw.State().Font->Charset);
  const bool pairs = (text.Options & TextPairs) != 0;
  if (reader.Left() >= length * (pairs ? 4 : 2)) {
    for (std::size_t i = 0; i < length; ++i) {
      text.Advances.push_back(reader.I16());
      if (pairs) text.Rises.push_back(reader.I16());
    }
  }
  playback.Draw.Text().Text(text);
}

constexpr WmfRecord Records[] = {
    {Meta::TextOut, TextOut},
    {Meta::ExtTextOut, ExtTextOut},
};

}  // namespace

std::span<const WmfRecord> WmfTextRecords() {
  return Records;
}

}  // namespace tarvis
