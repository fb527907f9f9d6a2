// Extended records of text.
#include "pictures/metafile/emf_plus/emf_plus_playback.h"

namespace tarvis {
namespace {

constexpr std::uint32_t AlignCenter = 6, AlignRight = 2, AlignBaseline = 24;
constexpr std::size_t MostCharacters = 0xFFFF;

void SetFont(PlusPlayback& playback, std::uint32_t flags, std::uint32_t brush) {
  playback.Draw.State().Font = std::make_shared<MetaFont>(playback.At<PlusFont>(flags & 0xFF).Font);
  const QBrush ink = playback.BrushOf(flags, brush).List.Brush;
  playback.Draw.State().TextColor =
      ink.gradient() != nullptr ? ink.gradient()->stops().first().second : ink.color();
}

// Lines end at line feeds, and between words where they'd pass `width`; 0 is no limit.
std::vector<TextRecord> Lines(Drawing& draw, const std::vector<TextCharacter>& text, double width) {
  std::vector<TextRecord> lines(1);
  TextRecord word;
  double used = 0;
  const auto endWord = [&] {
    const double wide = draw.Text().Width(word);
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

void DrawString(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  constexpr double paddingEms = 1.0 / 6;
  const std::uint32_t brush = reader.U32();
  const std::uint32_t formatIndex = reader.U32();
  const std::size_t length = reader.U32();
  if (length > MostCharacters) throw SkipRecord();
  const QRectF box = ReadRectF(reader);
  const std::vector<TextCharacter> text = DecodeUnits(reader.Take(length * 2));
  SetFont(playback, flags, brush);
  const auto* named = playback.Find<PlusFormat>(formatIndex);
  const PlusFormat format = named == nullptr ? PlusFormat() : *named;
  std::vector<TextRecord> lines = Lines(playback.Draw, text, format.Wraps ? box.width() : 0);
  const double em = -playback.Draw.State().Font->Height;
  const double pitch = em * 1.15;
  const double spare = box.height() - pitch * static_cast<double>(lines.size());
  double y = box.top() + (format.LineAlign == 1 ? spare / 2 : format.LineAlign == 2 ? spare : 0);
  const bool isAtTheRight = format.Align == (format.RunsToTheLeft ? 0 : 2);
  playback.Draw.State().TextAlign = format.Align == 1 ? AlignCenter : isAtTheRight ? AlignRight : 0;
  const double x = format.Align == 1 ? box.center().x()
                   : isAtTheRight    ? box.right() - em * paddingEms
                                     : box.left() + em * paddingEms;
  for (TextRecord& line : lines) {
    line.Reference = {x, y};
    line.Options = TextNoBox | (format.RunsToTheLeft ? TextToTheLeft : 0);
    playback.Draw.Text().Text(line);
    y += pitch;
  }
}

void DrawDriverString(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  enum : std::uint32_t { Characters = 1, Vertical = 2, FirstPlaceOnly = 4 };
  const std::uint32_t brush = reader.U32();
  const std::uint32_t options = reader.U32();
  const bool hasMatrix = reader.U32() != 0;
  const std::size_t count = reader.U32();
  if (count > reader.Left() / 2) throw OutOfBytes();
  if ((options & Vertical) != 0 || hasMatrix) throw SkipRecord();
  const Bytes codes = reader.Take(count * 2);
  SetFont(playback, flags, brush);
  playback.Draw.State().TextAlign = AlignBaseline;
  const std::size_t piece = (options & FirstPlaceOnly) != 0 ? std::max<std::size_t>(count, 1) : 1;
  for (std::size_t i = 0; i < count; i += piece) {
    TextRecord text;
    text.Text = DecodeUnits(codes.subspan(i * 2, piece * 2));
    text.Reference = ReadPointF(reader);
    text.Options = TextNoBox | ((options & Characters) != 0 ? TextAsItIs : TextGlyphIndexes);
    playback.Draw.Text().Text(text);
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
