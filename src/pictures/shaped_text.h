// A line whose characters must be shaped: joined, set in the order in which it is read, marks placed on
// letters. The toolkit shapes; measures are in em.
#pragma once

#include <QFont>
#include <QPointF>
#include <QRawFont>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "report/engine/text_flow.h"

namespace tarvis {

// Its place is that of its origin: from the left edge of the line, and below the baseline.
struct TextGlyph {
  std::uint16_t Face = 0;  // index of the faces of whoever keeps the line, such as ShapedText::Faces
  std::uint32_t Glyph = 0;
  float X = 0;
  float Y = 0;
};

// Characters that share their glyphs: a letter with its marks, or letters that are one sign.
struct TextCluster {
  std::u32string Text;
  bool RunsToTheLeft = false;
  std::vector<TextGlyph> Glyphs;
  float Left = 0;  // both from the left edge of the line
  float Right = 0;
  std::size_t FirstCharacter = 0;
  std::vector<std::size_t> Sizes;  // in characters, of its parts that are selected by themselves
};

// From the left edge of a line. Characters of one cluster share it.
struct CharacterPlace {
  float Left = 0;
  float Right = 0;
  bool RunsToTheLeft = false;
};

struct ShapedText {
  std::vector<TextCluster> Clusters;  // from left to right
  std::vector<QRawFont> Faces;
  float Advance = 0;
  std::size_t CharacterCount = 0;
};

// `font` has no hinting. Control characters of `text` take no room and show nothing.
ShapedText ShapeText(const QString& text, TextFlow flow, const QFont& font);

// Its advance only, which costs less.
float ShapedTextAdvance(const QString& text, TextFlow flow, const QFont& font);

// Places the characters of a cluster that reaches from `left` to `right`: the parts that are selected by
// themselves share its room.
void PlaceCharacters(const TextCluster& cluster, float left, float right,
                     std::vector<CharacterPlace>& places);

}  // namespace tarvis
