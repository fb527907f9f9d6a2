#include "preview/text/text_geometry.h"

#include <algorithm>

#include "preview/paint/page_painter.h"
#include "preview/paint/text_run.h"
#include "report/engine/utf8.h"

namespace tarvis {
namespace {

// Edges as printed, in twips from the left edge of the paper.
std::vector<double> PrintedEdges(const Document& document, std::uint32_t index) {
  const Item& item = document.Items[index];
  const TextPiece& piece = document.Texts[item.Source];
  const TextStyle& style = document.Styles[piece.Style];
  const float stretch = FitText(piece, item.Box).Stretch;
  std::vector<double> printed;
  for (const float edge : CharacterEdges(piece.Text, style.Size, style.Bold, ReportFont::OfThisThread())) {
    printed.push_back(static_cast<double>(item.Box.Left + edge * stretch));
  }
  return printed;
}

}  // namespace

QRectF BoxOfCharacters(const Document& document, std::uint32_t item, std::size_t first, std::size_t end) {
  const std::vector<double> edges = PrintedEdges(document, item);
  const double left = edges[std::min(first, edges.size() - 1)];
  const double right = edges[std::min(end, edges.size() - 1)];
  const Rect& box = document.Items[item].Box;
  return {left, static_cast<double>(box.Top), right - left, static_cast<double>(box.Height)};
}

std::size_t CharacterAt(const Document& document, std::uint32_t item, double x) {
  const std::vector<double> edges = PrintedEdges(document, item);
  std::size_t character = 0;
  while (character + 1 < edges.size() && x > (edges[character] + edges[character + 1]) / 2) ++character;
  return character;
}

std::size_t CharacterCount(const Document& document, std::uint32_t item) {
  const std::string_view text = document.Texts[document.Items[item].Source].Text;
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); ++count) NextCharacter(text, offset);
  return count;
}

}  // namespace tarvis
