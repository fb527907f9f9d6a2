#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

std::size_t Even(std::size_t size) {
  return size + size % 2;
}

void TextOut(WmfPlayback& p, ByteReader& r) {
  TextRecord text;
  const std::size_t length = r.U16();
  const Bytes padded = r.Take(Even(length));
  text.Reference = ReadYX(r);
  text.Text = DecodeText(padded.first(length), p.Draw.State().Font->Charset);
  text.Options = TextNoBox;
  p.Draw.Text(text);
}

void ExtTextOut(WmfPlayback& p, ByteReader& r) {
  TextRecord text;
  text.Reference = ReadYX(r);
  const std::size_t length = r.U16();
  text.Options = r.U16();
  if ((text.Options & TextGlyphIndexes) != 0) throw SkipRecord();  // no writer is known to do so
  if ((text.Options & (TextOpaque | TextClipped)) != 0) {
    const QPointF leftTop = ReadPoint16(r);
    text.Box = BoxOf(leftTop, ReadPoint16(r));
  }
  const Bytes string = r.Take(length);
  r.Skip(std::min<std::size_t>(r.Left(), length % 2));
  text.Text = DecodeText(string, p.Draw.State().Font->Charset);
  const bool pairs = (text.Options & TextPairs) != 0;
  if (r.Left() >= length * (pairs ? 4 : 2)) {
    for (std::size_t i = 0; i < length; ++i) {
      text.Advances.push_back(r.I16());
      if (pairs) text.Rises.push_back(r.I16());
    }
  }
  p.Draw.Text(text);
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
