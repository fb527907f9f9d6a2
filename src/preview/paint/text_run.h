// A piece of text as glyphs at places: what canvases paint, and the edges of characters for selecting.
#pragma once

#include <QList>
#include <QPointF>
#include <string_view>
#include <vector>

#include "preview/paint/report_font.h"

namespace tarvis {

// Glyphs of one face; places are in twips from the start of the piece, on the baseline.
struct TextRun {
  std::uint16_t Face = 0;
  QList<quint32> Glyphs;
  QList<QPointF> Places;
};

// `text` is UTF-8; `size` in points.
std::vector<TextRun> MakeRuns(std::string_view text, float size, bool bold, ReportFont& font);

// Left edge of each character and the end of the last, in twips: one more than characters.
std::vector<float> CharacterEdges(std::string_view text, float size, bool bold, ReportFont& font);

}  // namespace tarvis
