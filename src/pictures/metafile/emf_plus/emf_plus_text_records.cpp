// Extended records of text.
#include "pictures/metafile/emf_plus/emf_plus_playback.h"

namespace tarvis {
namespace {

constexpr std::uint32_t AlignCenter = 6, AlignRight = 2, AlignBaseline = 24;
constexpr std::size_t MostCharacters = 0xFFFF;

void SetFont(PlusPlayback& p, std::uint32_t flags, std::uint32_t brush) {
  p.Draw.State().Font = std::make_shared<MetaFont>(p.At<PlusFont>(flags & 0xFF).Font);
  const QBrush ink = p.BrushOf(flags, brush).List.Brush;
  p.Draw.State().TextColor = ink.gradient() != nullptr ? ink.gradient()->stops().first().second : ink.color();
}

// Lines end at line feeds, and between words where they'd pass `width`; 0 is no limit.
std::vector<TextRecord> Lines(Drawing& draw, const std::vector<TextCharacter>& text, double width) {
  std::vector<TextRecord> lines(1);
  TextRecord word;
  double used = 0;
  const auto endWord = [&] {
    const double wide = draw.TextWidth(word);
    std::vector<TextCharacter>& line = lines.back().Text;
    if (width <= 0 || line.empty() || used + wide <= width) {
      line.insert(line.end(), word.Text.begin(), word.Text.end());
      used += wide;
    } else {
      lines.push_back(std::move(word));
      used = wide;
    }
    word = {};
  };
  for (const TextCharacter& character : text) {
    if (character.Code >= U' ') word.Text.push_back(character);
    if (character.Code == U' ' || character.Code == U'\n') endWord();
    if (character.Code != U'\n') continue;
    lines.emplace_back();
    used = 0;
  }
  endWord();
  return lines;
}

void DrawString(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  constexpr double paddingEms = 1.0 / 6;
  const std::uint32_t brush = r.U32();
  const std::uint32_t formatIndex = r.U32();
  const std::size_t length = r.U32();
  if (length > MostCharacters) throw SkipRecord();
  const QRectF box = ReadRectF(r);
  const std::vector<TextCharacter> text = DecodeUnits(r.Take(length * 2));
  SetFont(p, flags, brush);
  const auto* told = p.Find<PlusFormat>(formatIndex);
  const PlusFormat format = told == nullptr ? PlusFormat() : *told;
  std::vector<TextRecord> lines = Lines(p.Draw, text, format.Wraps ? box.width() : 0);
  const double em = -p.Draw.State().Font->Height;
  const double pitch = em * 1.15;
  const double spare = box.height() - pitch * static_cast<double>(lines.size());
  double y = box.top() + (format.LineAlign == 1 ? spare / 2 : format.LineAlign == 2 ? spare : 0);
  p.Draw.State().TextAlign = format.Align == 1 ? AlignCenter : format.Align == 2 ? AlignRight : 0;
  const double x = format.Align == 1   ? box.center().x()
                   : format.Align == 2 ? box.right() - em * paddingEms
                                       : box.left() + em * paddingEms;
  for (TextRecord& line : lines) {
    line.Reference = {x, y};
    line.Options = TextNoBox;
    p.Draw.Text(line);
    y += pitch;
  }
}

void DrawDriverString(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  enum : std::uint32_t { Characters = 1, Vertical = 2, FirstPlaceOnly = 4 };
  const std::uint32_t brush = r.U32();
  const std::uint32_t options = r.U32();
  const bool hasMatrix = r.U32() != 0;
  const std::size_t count = r.U32();
  if (count > r.Left() / 2) throw OutOfBytes();
  if ((options & Vertical) != 0 || hasMatrix) throw SkipRecord();
  const Bytes codes = r.Take(count * 2);
  SetFont(p, flags, brush);
  p.Draw.State().TextAlign = AlignBaseline;
  const std::size_t piece = (options & FirstPlaceOnly) != 0 ? std::max<std::size_t>(count, 1) : 1;
  for (std::size_t i = 0; i < count; i += piece) {
    TextRecord text;
    text.Text = DecodeUnits(codes.subspan(i * 2, piece * 2));
    text.Reference = ReadPointF(r);
    text.Options = (options & Characters) != 0 ? TextNoBox : TextNoBox | TextGlyphIndexes;
    p.Draw.Text(text);
  }
}

constexpr PlusRecordRow Records[] = {
    {PlusRecord::DrawString, DrawString},
    {PlusRecord::DrawDriverString, DrawDriverString},
};

}  // namespace

std::span<const PlusRecordRow> PlusTextRecords() {
  return Records;
}

}  // namespace tarvis
