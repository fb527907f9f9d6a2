#include "preview/text/text_geometry.h"

#include <QPolygonF>
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

QRectF ToRectF(const Rect& box) {
  return {static_cast<double>(box.Left), static_cast<double>(box.Top), static_cast<double>(box.Width),
          static_cast<double>(box.Height)};
}

// A text inside a picture, on the paper. It may run in any direction.
struct PlacedText {
  std::vector<QPointF> Edges;
  QPointF Up, Down;

  PlacedText(const Document& document, const ReadPiece& piece) {
    const Item& item = document.Items[piece.Item];
    const PictureText& text = PictureTextOf(document, piece);
    const QRectF box = ToRectF(item.Box);
    const auto scaled = [&box](PictureText::Place place) {
      return QPointF(static_cast<double>(place.X) * box.width(), static_cast<double>(place.Y) * box.height());
    };
    for (const PictureText::Place& edge : text.Edges) Edges.push_back(box.topLeft() + scaled(edge));
    Up = scaled(text.Up);
    Down = scaled(text.Down);
  }

  static const PictureText& PictureTextOf(const Document& document, const ReadPiece& piece) {
    return document.Pictures[document.Items[piece.Item].Source]
        ->Texts()[static_cast<std::size_t>(piece.PictureText)];
  }
  QRectF Box(std::size_t first, std::size_t end) const {
    const QPointF from = Edges[std::min(first, Edges.size() - 1)];
    const QPointF to = Edges[std::min(end, Edges.size() - 1)];
    return QPolygonF({from + Up, from + Down, to + Down, to + Up}).boundingRect();
  }
  std::size_t CharacterAt(QPointF point) const {
    const QPointF way = Edges.back() - Edges.front();
    const auto along = [&](QPointF place) { return QPointF::dotProduct(place - Edges.front(), way); };
    std::size_t character = 0;
    while (character + 1 < Edges.size() &&
           along(point) > (along(Edges[character]) + along(Edges[character + 1])) / 2)
      ++character;
    return character;
  }
};

bool IsInPicture(const ReadPiece& piece) {
  return piece.PictureText >= 0;
}

}  // namespace

std::string_view TextOf(const Document& document, const ReadPiece& piece) {
  if (IsInPicture(piece)) return PlacedText::PictureTextOf(document, piece).Text;
  return document.Texts[document.Items[piece.Item].Source].Text;
}

QRectF BoxOfLine(const Document& document, const ReadPiece& piece) {
  if (!IsInPicture(piece)) return ToRectF(document.Items[piece.Item].Box);
  const PlacedText text(document, piece);
  return text.Box(0, text.Edges.size() - 1);
}

QRectF BoxOfCharacters(const Document& document, const ReadPiece& piece, std::size_t first, std::size_t end) {
  if (IsInPicture(piece)) return PlacedText(document, piece).Box(first, end);
  const std::vector<double> edges = PrintedEdges(document, piece.Item);
  const double left = edges[std::min(first, edges.size() - 1)];
  const double right = edges[std::min(end, edges.size() - 1)];
  const Rect& box = document.Items[piece.Item].Box;
  return {left, static_cast<double>(box.Top), right - left, static_cast<double>(box.Height)};
}

std::size_t CharacterAt(const Document& document, const ReadPiece& piece, QPointF point) {
  if (IsInPicture(piece)) return PlacedText(document, piece).CharacterAt(point);
  const std::vector<double> edges = PrintedEdges(document, piece.Item);
  std::size_t character = 0;
  while (character + 1 < edges.size() && point.x() > (edges[character] + edges[character + 1]) / 2)
    ++character;
  return character;
}

std::size_t CharacterCount(const Document& document, const ReadPiece& piece) {
  const std::string_view text = TextOf(document, piece);
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); ++count) NextCharacter(text, offset);
  return count;
}

}  // namespace tarvis
