#include "report/engine/text_cache.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <optional>
#include <string>

#include "report/engine/line_breaker.h"
#include "report/engine/utf8.h"

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

}  // namespace

float LinePitch(float size) {
  return static_cast<float>(std::nearbyint(static_cast<double>(size * TwipsPerPoint) * LinePitchEm));
}

std::size_t TextCache::KeyHash::operator()(const Key& key) const {
  return std::hash<std::string_view>{}(key.Text) ^
         (static_cast<std::size_t>(key.Style) * 0x9E3779B97F4A7C15U);
}

TextCache::TextCache(Document& document, const TextMeasurer& measurer)
    : document_(document), measurer_(measurer), breaker_(std::make_unique<LineBreaker>()) {
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
  const std::uint32_t whole = Find(text, style);
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

std::uint32_t TextCache::Find(std::string_view text, std::uint16_t style) {
  const auto found = index_.find(Key{text, style});
  if (found != index_.end()) return found->second;
  // Blanks from here on, so that each is measured, broken, painted, found and copied as one.
  if (const auto plain = WithPlainBlanks(text)) {
    const std::uint32_t whole = Find(*plain, style);
    index_.emplace(Key{Keep(text), style}, whole);
    return whole;
  }
  const auto next = static_cast<std::uint32_t>(wholes_.size());
  Whole whole;
  whole.Text = Keep(text);
  whole.Style = style;
  whole.HasLineEnds = text.find("\r\n") != std::string_view::npos;
  whole.Advance = Advance(text, style);
  wholes_.push_back(whole);
  index_.emplace(Key{whole.Text, style}, next);
  return next;
}

std::uint32_t TextCache::PieceOf(std::uint32_t whole) {
  Whole& entry = wholes_[whole];
  if (entry.Piece < 0) {
    entry.Piece = static_cast<std::int64_t>(document_.Texts.size());
    document_.Texts.push_back({entry.Text, entry.Style, entry.Advance});
  }
  return static_cast<std::uint32_t>(entry.Piece);
}

const TextCache::Broken& TextCache::Break(std::uint32_t whole, float width) {
  const std::uint64_t key = (static_cast<std::uint64_t>(whole) << 32U) | std::bit_cast<std::uint32_t>(width);
  const auto found = broken_.find(key);
  if (found != broken_.end()) return found->second;
  const auto first = static_cast<std::uint32_t>(linePieces_.size());
  const std::uint16_t style = wholes_[whole].Style;
  std::string_view rest = wholes_[whole].Text;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find("\r\n"), rest.size());
    BreakParagraph(rest.substr(0, end), style, width);
    rest.remove_prefix(std::min(end + 2, rest.size()));
  }
  const Broken broken{first, static_cast<std::uint32_t>(linePieces_.size()) - first};
  return broken_.emplace(key, broken).first->second;
}

void TextCache::BreakParagraph(std::string_view paragraph, std::uint16_t style, float width) {
  std::string_view line = paragraph.substr(0, 0);
  std::size_t start = 0;
  if (Advance(paragraph, style) <= width + FitTolerance) {
    line = paragraph;
  } else {
    for (const int opportunity : breaker_->Opportunities(paragraph)) {
      const auto end = static_cast<std::size_t>(opportunity);
      BreakPiece(paragraph.substr(start, end - start), style, width, line);
      start = end;
    }
  }
  EndLine(line, style);
}

// Appends an unbreakable piece to `line`, ending lines as needed. Blanks at the end of a line take no room.
void TextCache::BreakPiece(std::string_view piece, std::uint16_t style, float width, std::string_view& line) {
  const auto fits = [&](std::string_view text) {
    return Advance(WithoutTrailingBlanks(text), style) <= width + FitTolerance;
  };
  const std::string_view longer{line.empty() ? piece.data() : line.data(), line.size() + piece.size()};
  if (fits(longer)) {
    line = longer;
    return;
  }
  if (!line.empty()) EndLine(WithoutTrailingBlanks(line), style);
  line = piece;
  while (!fits(line)) {
    std::size_t end = 0;
    NextCharacter(line, end);
    for (std::size_t next = end; next < line.size(); end = next) {
      NextCharacter(line, next);
      if (!fits(line.substr(0, next))) break;
    }
    if (end >= line.size()) return;  // a single character wider than the box
    EndLine(line.substr(0, end), style);
    line.remove_prefix(end);
  }
}

void TextCache::EndLine(std::string_view line, std::uint16_t style) {
  const std::uint32_t piece = PieceOf(Find(line, style));
  linePieces_.push_back(piece);
}

float TextCache::Advance(std::string_view text, std::uint16_t style) const {
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
