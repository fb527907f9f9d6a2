// A piece of text as glyphs at places: what canvases paint, and the edges of characters for selecting.
#pragma once

#include <QList>
#include <QPointF>
#include <string_view>
#include <vector>

#include "preview/paint/report_font.h"
#include "preview/paint/shaped_line.h"
#include "report/engine/document.h"

namespace tarvis {

// Glyphs of one face; places are in twips from the start of the piece, on the baseline.
struct TextRun {
  std::uint16_t Face = 0;
  QList<quint32> Glyphs;
  QList<QPointF> Places;
};

std::vector<TextRun> MakeRuns(const TextPiece& piece, const TextStyle& style, ReportFont& font);

// The place of each character of a piece, in the order of the text, in twips from its left edge.
std::vector<CharacterPlace> CharacterPlaces(const TextPiece& piece, const TextStyle& style, ReportFont& font);

// Left edge of each character and the end of the last, in twips: one more than characters. `text` is UTF-8
// and needs no shaping; `size` in points.
std::vector<float> CharacterEdges(std::string_view text, float size, bool bold, ReportFont& font);

}  // namespace tarvis
