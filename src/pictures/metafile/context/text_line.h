// Finds where the characters of a text record go, by the font and the mapping of a device context.
#pragma once

#include "pictures/metafile/context/device_context.h"
#include "pictures/metafile/fonts/charset.h"
#include "pictures/metafile/fonts/glyph_outlines.h"
#include "pictures/shaped_text.h"

namespace tarvis {

struct TextRecord {
  QPointF Reference;
  std::vector<TextCharacter> Text;
  std::vector<double> Advances;  // one for each unit of the record's text, or none
  std::vector<double> Rises;     // the same, upwards
  std::uint32_t Options = 0;
  QRectF Box;
};

// Options of text records.
inline constexpr std::uint32_t TextOpaque = 2, TextClipped = 4, TextGlyphIndexes = 0x10, TextToTheLeft = 0x80,
                               TextNoBox = 0x100, TextSmall = 0x200, TextAsItIs = 0x1000, TextPairs = 0x2000;

// Bits of the text alignment of a context.
inline constexpr std::uint32_t AlignUpdatesPosition = 1, AlignRight = 2, AlignCenter = 6, AlignBottom = 8,
                               AlignBaseline = 24, AlignTextToTheLeft = 0x100;

// A line of text. `Along` and `Down` are one logical unit along the baseline and down from it, both in device
// units; a glyph's own axes differ where the mapping stretches, for glyphs keep their proportions.
struct TextLine {
  OutlineFont Font;
  OutlineFace* Face = nullptr;
  QPointF Start;  // of the baseline, device units
  QPointF Along, Down;
  QPointF GlyphAlong, GlyphDown;   // one em of a glyph
  double Ascent = 0, Descent = 0;  // in units of Down
  double NaturalUnit = 0;          // units of Along to one em of natural advance
  double Width = 0;                // in units of Along
  double Rise = 0;                 // of the end above the start, in units of Down
  std::vector<QPointF> Places;     // of the characters from the start, along and upwards
  std::vector<QPointF> Ends;       // the same, where each character ends
  TextFlow Flow = TextFlow::Plain;
  ShapedText Shaped;  // unless its flow is plain
};

class TextPlacer {
 public:
  TextPlacer(const DeviceContext& context, GlyphOutlines& glyphs) : context_(context), glyphs_(glyphs) {}

  // The line from its reference point on, not yet aligned.
  TextLine Place(const TextRecord& text);
  // Turns numbers of glyphs into characters. BadMetafile if they aren't known, or are as wide as no letter of
  // the font that is installed: such text must not show wrong letters.
  TextRecord WithCharacters(const TextRecord& text);

 private:
  TextLine Baseline(const TextRecord& text);
  void PlaceGlyphs(const TextRecord& text, TextLine& line);
  void PlaceShaped(const TextRecord& text, TextLine& line);
  TextFlow FlowOfRecord(const TextRecord& text) const;

  const DeviceContext& context_;
  GlyphOutlines& glyphs_;
};

}  // namespace tarvis
