#include "report/engine/text_cache.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>
#include <string>

#include "report/engine/line_breaker.h"
#include "report/engine/utf8.h"
#include "text/normal_form.h"

namespace tarvis {
namespace {

constexpr std::size_t StorageBlock = 1 << 16;

std::string_view WithoutTrailingBlanks(std::string_view line) {
  const std::size_t last = line.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : line.substr(0, last + 1);
}

bool IsLoneLineFeed(std::string_view text, std::size_t offset) {
  return text[offset] == '\n' && (offset == 0 || text[offset - 1] != '\r');
}

// `text` with a blank for each tab and each line feed that ends no line; nothing if it has neither.
std::optional<std::string> WithPlainBlanks(std::string_view text) {
  std::optional<std::string> plain;
  for (std::size_t offset = 0; offset < text.size(); ++offset) {
    if (text[offset] != '\t' && !IsLoneLineFeed(text, offset)) continue;
    if (!plain) plain.emplace(text);
    (*plain)[offset] = ' ';
  }
  return plain;
}

// `text` as pages show it: with plain blanks, and each letter with its marks as one character; nothing if it
// is so already.
std::optional<std::string> AsShown(std::string_view text) {
  std::optional<std::string> plain = WithPlainBlanks(text);
  std::optional<std::string> composed = ToComposed(plain ? *plain : text);
  return composed ? composed : plain;
}

}  // namespace

float LinePitch(float size) {
  return static_cast<float>(std::nearbyint(size * TwipsPerPoint * LinePitchEm));
}

TextCache::TextCache(Document& document, const TextMeasurer& measurer)
    : document_(document), measurer_(measurer), breaker_(std::make_unique<LineBreaker>()) {
  document_.CodePage = measurer_.CodePage();
  for (const bool bold : {false, true}) {
    for (char32_t character = ' '; character < 127; ++character) {
      ascii_[bold][character] = measurer_.AdvanceEm(character, bold);
    }
  }
}

TextCache::~TextCache() = default;

std::uint16_t TextCache::Style(float size, bool bold) {
  return StyleIndex(document_, {size, bold});
}

std::uint16_t TextCache::Name(const char* controlName) {
  const auto next = static_cast<std::uint16_t>(document_.Names.size());
  const auto [found, isNew] = names_.try_emplace(controlName, next);
  if (isNew) document_.Names.push_back(Keep(controlName));
  return found->second;
}

std::span<const std::uint32_t> TextCache::Lines(std::string_view text, std::uint16_t style, float width) {
  if (text.empty()) return {};
  const std::uint32_t whole = FindInPlace(text, style);
  if (!wholes_[whole].HasLineEnds && wholes_[whole].Advance <= width + FitTolerance) {
    onePiece_ = PieceOf(whole);
    return {&onePiece_, 1};
  }
  const Broken& broken = Break(whole, width);
  return {linePieces_.data() + broken.First, broken.Count};
}

std::uint32_t TextCache::OneLine(std::string_view text, std::uint16_t style) {
  const std::uint32_t whole = Find(text, style);
  if (!wholes_[whole].HasLineEnds) return PieceOf(whole);
  std::string joined;
  for (std::size_t offset = 0; offset < text.size(); ++offset) {
    if (text.substr(offset, 2) == "\r\n") {
      joined += ' ';
      ++offset;
    } else {
      joined += text[offset];
    }
  }
  return PieceOf(Find(joined, style));
}

std::uint32_t TextCache::Find(std::string_view text, std::uint16_t style, TextFlow paragraph) {
  if (const auto found = index_.Find({text, style, paragraph})) return *found;
  // From here on each text is measured, broken, painted, found and copied in one form.
  if (const auto shown = AsShown(text)) {
    const std::uint32_t whole = Find(*shown, style, paragraph);
    index_.Add({Keep(text), style, paragraph}, whole);
    return whole;
  }
  const auto next = static_cast<std::uint32_t>(wholes_.size());
  Whole whole;
  whole.Text = Keep(text);
  whole.Style = style;
  whole.Flow = paragraph == TextFlow::Plain ? FlowOf(text) : paragraph;
  whole.IsParagraph = paragraph == TextFlow::Plain;
  whole.HasLineEnds = text.find("\r\n") != std::string_view::npos;
  if (!whole.HasLineEnds) whole.Advance = Advance(text, style, whole.Flow);
  wholes_.push_back(whole);
  index_.Add({whole.Text, style, paragraph}, next);
  return next;
}

// A control's text is asked for twice for each row, and many a column has the same text in row after row.
std::uint32_t TextCache::FindInPlace(std::string_view text, std::uint16_t style) {
  const auto address = std::bit_cast<std::uintptr_t>(text.data());
  std::uint32_t& last = lastFound_[(address >> 4U) % lastFound_.size()];
  const bool isIt = last < wholes_.size() && wholes_[last].Text == text && wholes_[last].Style == style &&
                    wholes_[last].IsParagraph;
  if (!isIt) last = Find(text, style);
  return last;
}

std::uint32_t TextCache::PieceOf(std::uint32_t whole, bool blankFollows) {
  const Whole& entry = wholes_[whole];
  std::uint32_t& piece = wholes_[whole].Pieces[blankFollows ? 1 : 0];
  if (piece == NoPiece) {
    piece = static_cast<std::uint32_t>(document_.Texts.size());
    document_.Texts.push_back({entry.Text, entry.Style, entry.Flow, blankFollows, entry.Advance});
  }
  return piece;
}

const TextCache::Broken& TextCache::Break(std::uint32_t whole, float width) {
  const std::uint64_t key = (static_cast<std::uint64_t>(whole) << 32U) | std::bit_cast<std::uint32_t>(width);
  const auto found = broken_.find(key);
  if (found != broken_.end()) return found->second;
  const auto first = static_cast<std::uint32_t>(linePieces_.size());
  const std::uint16_t style = wholes_[whole].Style;
  std::string_view rest = wholes_[whole].Text;
  while (!rest.empty()) {
    const std::string_view paragraph = rest.substr(0, rest.find("\r\n"));
    rest.remove_prefix(std::min(paragraph.size() + 2, rest.size()));
    BreakParagraph(paragraph, {style, FlowOf(paragraph), width}, rest.empty());
  }
  const Broken broken{first, static_cast<std::uint32_t>(linePieces_.size()) - first};
  return broken_.emplace(key, broken).first->second;
}

void TextCache::BreakParagraph(std::string_view paragraph, const Setting& setting, bool isLast) {
  std::string_view line = paragraph.substr(0, 0);
  std::size_t start = 0;
  if (Advance(paragraph, setting.Style, setting.Flow) <= setting.Width + FitTolerance) {
    line = paragraph;
  } else {
    for (const int opportunity : breaker_->Opportunities(paragraph)) {
      const auto end = static_cast<std::size_t>(opportunity);
      BreakPiece(paragraph.substr(start, end - start), setting, line);
      start = end;
    }
  }
  EndLine(line, setting, !isLast && !line.ends_with(' '));
}

bool TextCache::Fits(std::string_view line, const Setting& setting) const {
  return Advance(WithoutTrailingBlanks(line), setting.Style, setting.Flow) <= setting.Width + FitTolerance;
}

// Appends an unbreakable piece to `line`, ending lines as needed. Blanks at the end of a line take no room.
void TextCache::BreakPiece(std::string_view piece, const Setting& setting, std::string_view& line) {
  const std::string_view longer{line.empty() ? piece.data() : line.data(), line.size() + piece.size()};
  if (Fits(longer, setting)) {
    line = longer;
    return;
  }
  if (!line.empty()) {
    const std::string_view shown = WithoutTrailingBlanks(line);
    EndLine(shown, setting, shown.size() < line.size());
  }
  line = piece;
  for (;;) {
    const std::size_t end = FittingStart(line, setting);
    if (end >= line.size()) return;
    EndLine(line.substr(0, end), setting, false);
    line.remove_prefix(end);
  }
}

// The end of the longest start that fits; at least of the first cluster, which may be wider than the box.
std::size_t TextCache::FittingStart(std::string_view piece, const Setting& setting) {
  std::size_t end = ClusterEnd(piece, 0, setting.Flow);
  while (end < piece.size()) {
    const std::size_t next = ClusterEnd(piece, end, setting.Flow);
    if (!Fits(piece.substr(0, next), setting)) break;
    end = next;
  }
  return end;
}

std::size_t TextCache::ClusterEnd(std::string_view text, std::size_t offset, TextFlow flow) {
  if (flow != TextFlow::Plain) return offset + breaker_->FirstCluster(text.substr(offset));
  NextCharacter(text, offset);
  return offset;
}

void TextCache::EndLine(std::string_view line, const Setting& setting, bool blankFollows) {
  linePieces_.push_back(PieceOf(Find(line, setting.Style, FlowOfLine(line, setting.Flow)), blankFollows));
}

float TextCache::Advance(std::string_view text, std::uint16_t style, TextFlow flow) const {
  const TextStyle& font = document_.Styles[style];
  if (flow != TextFlow::Plain)
    return measurer_.LineAdvanceEm(text, font.Bold, flow) * font.Size * TwipsPerPoint;
  float advance = 0;
  for (std::size_t offset = 0; offset < text.size();)
    advance += CharacterAdvance(NextCharacter(text, offset), style);
  return advance;
}

float TextCache::CharacterAdvance(char32_t character, std::uint16_t style) const {
  const TextStyle& font = document_.Styles[style];
  const float em = character < 128 ? ascii_[font.Bold][character] : measurer_.AdvanceEm(character, font.Bold);
  return em * font.Size * TwipsPerPoint;
}

std::string_view TextCache::Keep(std::string_view text) {
  auto& storage = document_.Storage;
  if (storage.empty() || storage.back().size() + text.size() > storage.back().capacity()) {
    storage.emplace_back();
    storage.back().reserve(std::max(StorageBlock, text.size()));
  }
  std::string& block = storage.back();
  const std::size_t start = block.size();
  block += text;
  return std::string_view{block}.substr(start);
}

}  // namespace tarvis
