// Measures each distinct text once and breaks it into lines; the pieces are kept in the document.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "report/engine/document.h"
#include "report/engine/text_index.h"
#include "report/engine/text_measurer.h"

namespace tarvis {

class LineBreaker;

// Text wraps, and a field grows, only when it is more than this wider or higher than its box (twips).
inline constexpr float FitTolerance = 10;

// Line pitch of a font size (points), in whole twips.
float LinePitch(float size);

class TextCache {
 public:
  // Both must outlive the cache; the pieces are added to `document`.
  TextCache(Document& document, const TextMeasurer& measurer);
  ~TextCache();
  TextCache(const TextCache&) = delete;
  TextCache& operator=(const TextCache&) = delete;

  std::uint16_t Style(float size, bool bold);
  std::uint16_t Name(const char* controlName);

  // The lines of `text` in a box `width` twips wide, as indices of Document::Texts. Lines break at CR LF, at
  // break opportunities, and inside a piece wider than the box; a trailing CR LF adds no line. Tabs and lone
  // line feeds are blanks. The span is valid until the next call.
  std::span<const std::uint32_t> Lines(std::string_view text, std::uint16_t style, float width);
  // The whole text as one piece, line ends turned into blanks.
  std::uint32_t OneLine(std::string_view text, std::uint16_t style);

 private:
  static constexpr std::uint32_t NoPiece = 0xFFFFFFFF;

  // A text in one style as a handler gave it.
  struct Whole {
    std::string_view Text;
    float Advance = 0;  // of a text without line ends
    std::uint16_t Style = 0;
    TextFlow Flow = TextFlow::Plain;
    bool HasLineEnds = false;
    bool IsParagraph = true;  // false for a line of a paragraph that was broken in its own direction
    // Indexes of Document::Texts, once it has been set on one line: as a whole text or the last line of one,
    // and as a line that a blank follows.
    std::array<std::uint32_t, 2> Pieces{NoPiece, NoPiece};
  };
  struct Broken {
    std::uint32_t First = 0;
    std::uint32_t Count = 0;
  };

  // How a paragraph is set.
  struct Setting {
    std::uint16_t Style = 0;
    TextFlow Flow = TextFlow::Plain;
    float Width = 0;
  };

  // `paragraph` is the flow of the paragraph that `text` is a line of; Plain if it is a text of its own.
  std::uint32_t Find(std::string_view text, std::uint16_t style, TextFlow paragraph = TextFlow::Plain);
  // The same as Find, for a text that stays in its place from one call to the next, as that of a control.
  std::uint32_t FindInPlace(std::string_view text, std::uint16_t style);
  std::uint32_t PieceOf(std::uint32_t whole, bool blankFollows = false);
  const Broken& Break(std::uint32_t whole, float width);
  // `isLast`: no other line of the text follows.
  void BreakParagraph(std::string_view paragraph, const Setting& setting, bool isLast);
  void BreakPiece(std::string_view piece, const Setting& setting, std::string_view& line);
  bool Fits(std::string_view line, const Setting& setting) const;
  std::size_t FittingStart(std::string_view piece, const Setting& setting);
  std::size_t ClusterEnd(std::string_view text, std::size_t offset, TextFlow flow);
  void EndLine(std::string_view line, const Setting& setting, bool blankFollows);
  float Advance(std::string_view text, std::uint16_t style, TextFlow flow) const;
  float CharacterAdvance(char32_t character, std::uint16_t style) const;
  std::string_view Keep(std::string_view text);

  Document& document_;
  const TextMeasurer& measurer_;
  std::array<std::array<float, 128>, 2> ascii_{};  // em, by weight
  TextIndex index_;                                // of wholes_
  // What was found last for texts in these places, by their addresses.
  std::array<std::uint32_t, 64> lastFound_{};
  std::vector<Whole> wholes_;
  std::unordered_map<std::uint64_t, Broken> broken_;  // by whole and width
  std::vector<std::uint32_t> linePieces_;
  std::uint32_t onePiece_ = 0;
  std::unordered_map<const char*, std::uint16_t> names_;
  std::unique_ptr<LineBreaker> breaker_;
};

}  // namespace tarvis
