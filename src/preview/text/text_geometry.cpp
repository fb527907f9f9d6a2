#include "preview/text/text_geometry.h"

#include <QPolygonF>
#include <algorithm>

#include "preview/paint/page_painter.h"
#include "preview/paint/text_run.h"
#include "preview/paint/toolkit_geometry.h"
#include "report/engine/utf8.h"

namespace tarvis {
namespace {

// Places as printed, in twips from the left edge of the paper.
std::vector<CharacterPlace> PrintedPlaces(const Document& document, std::uint32_t index) {
  const Item& item = document.Items[index];
  const TextPiece& piece = document.Texts[item.Source];
  const float stretch = FitText(piece, item.Box).Stretch;
  std::vector<CharacterPlace> places =
      CharacterPlaces(piece, document.Styles[piece.Style], ReportFont::OfThisThread(document.CodePage));
  for (CharacterPlace& place : places) {
    place.Left = item.Box.Left + place.Left * stretch;
    place.Right = item.Box.Left + place.Right * stretch;
  }
  return places;
}

// Neighbours become one box.
std::vector<QRectF> BoxesOf(std::vector<CharacterPlace> places, const Rect& line) {
  constexpr double Touching = 0.5;  // twips, for rounding
  std::ranges::sort(places, {}, &CharacterPlace::Left);
  std::vector<QRectF> boxes;
  for (const CharacterPlace& place : places) {
    const double left = place.Left, right = place.Right;
    if (boxes.empty() || left > boxes.back().right() + Touching) {
      boxes.emplace_back(left, line.Top, right - left, line.Height);
    } else {
      boxes.back().setRight(std::max(boxes.back().right(), right));
    }
  }
  return boxes;
}

double DistanceTo(const CharacterPlace& place, double x) {
  return std::max({place.Left - x, x - place.Right, 0.0});
}

// Before the nearest character or after it, by its half.
std::size_t CharacterIn(const std::vector<CharacterPlace>& places, double x) {
  if (places.empty()) return 0;
  const auto nearest =
      std::ranges::min_element(places, {}, [x](const CharacterPlace& place) { return DistanceTo(place, x); });
  const auto index = static_cast<std::size_t>(nearest - places.begin());
  const double left = nearest->Left, right = nearest->Right;
  const double middle = (left + right) / 2;
  if ((x > middle) == nearest->RunsToTheLeft) return index;
  // After its marks, which have the same place.
  std::size_t end = index + 1;
  while (end < places.size() && places[end].Left == nearest->Left && places[end].Right == nearest->Right)
    ++end;
  return end;
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
      return QPointF(place.X * box.width(), place.Y * box.height());
    };
    for (const PictureText::Place& edge : text.Edges) Edges.push_back(box.topLeft() + scaled(edge));
    Up = scaled(text.Up);
    Down = scaled(text.Down);
  }

  static const PictureText& PictureTextOf(const Document& document, const ReadPiece& piece) {
    return document.Pictures[document.Items[piece.Item].Source]
        ->Texts()[static_cast<std::size_t>(piece.PictureText)];
  }
  std::size_t CharacterCount() const { return Edges.size() / 2; }
  // Neighbours become one box.
  std::vector<QRectF> Boxes(std::size_t first, std::size_t end) const {
    constexpr double Touching = 0.5;  // twips, for rounding
    std::vector<QRectF> boxes;
    QPointF last;
    for (std::size_t index = first; index < std::min(end, CharacterCount()); ++index) {
      const QPointF from = Edges[2 * index], to = Edges[2 * index + 1];
      const QRectF box = QPolygonF({from + Up, from + Down, to + Down, to + Up}).boundingRect();
      const bool goesOn = !boxes.empty() && (from - last).manhattanLength() < Touching;
      if (goesOn) {
        boxes.back() |= box;
      } else {
        boxes.push_back(box);
      }
      last = to;
    }
    return boxes;
  }
  QRectF Box() const {
    QRectF all;
    for (const QRectF& box : Boxes(0, CharacterCount())) all |= box;
    return all;
  }
  // The widest character shows the way of the line: one that turns back may end where it starts.
  QPointF Way() const {
    QPointF way;
    for (std::size_t index = 0; index + 1 < Edges.size(); index += 2) {
      const QPointF step = Edges[index + 1] - Edges[index];
      if (QPointF::dotProduct(step, step) > QPointF::dotProduct(way, way)) way = step;
    }
    return way;
  }
  std::size_t CharacterAt(QPointF point) const {
    const QPointF way = Way();
    const auto along = [&](QPointF place) {
      return static_cast<float>(QPointF::dotProduct(place - Edges.front(), way));
    };
    std::vector<CharacterPlace> places;
    for (std::size_t index = 0; index + 1 < Edges.size(); index += 2) {
      const float from = along(Edges[index]), to = along(Edges[index + 1]);
      places.push_back({std::min(from, to), std::max(from, to), to < from});
    }
    return CharacterIn(places, static_cast<double>(along(point)));
  }
};

bool IsTick(const Document& document, const ReadPiece& piece) {
  return document.Items[piece.Item].Kind == ItemKind::Tick;
}

bool IsInPicture(const ReadPiece& piece) {
  return piece.PictureText >= 0;
}

}  // namespace

std::string_view TextOf(const Document& document, const ReadPiece& piece) {
  if (IsInPicture(piece)) return PlacedText::PictureTextOf(document, piece).Text;
  const Item& item = document.Items[piece.Item];
  if (IsTick(document, piece)) return item.Ticked ? "selected" : "not selected";
  return document.Texts[item.Source].Text;
}

QString StringOf(const Document& document, const ReadPiece& piece) {
  const std::string_view text = TextOf(document, piece);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

qsizetype UnitsOf(const QString& text, std::size_t count) {
  qsizetype units = 0;
  for (; count > 0 && units < text.size(); --count) {
    const bool isPair =
        text[units].isHighSurrogate() && units + 1 < text.size() && text[units + 1].isLowSurrogate();
    units += isPair ? 2 : 1;
  }
  return units;
}

bool IsWordCharacter(char32_t character) {
  return QChar::isLetterOrNumber(character) || character == U'_';
}

QRectF BoxOfLine(const Document& document, const ReadPiece& piece) {
  if (!IsInPicture(piece)) return ToRectF(document.Items[piece.Item].Box);
  return PlacedText(document, piece).Box();
}

std::vector<QRectF> BoxesOfCharacters(const Document& document, const ReadPiece& piece, std::size_t first,
                                      std::size_t end) {
  if (IsInPicture(piece)) return PlacedText(document, piece).Boxes(first, end);
  if (IsTick(document, piece))
    return {BoxOfLine(document, piece)};  // of its word there is only all or nothing
  const std::vector<CharacterPlace> places = PrintedPlaces(document, piece.Item);
  const std::size_t last = std::min(end, places.size());
  if (first >= last) return {};
  const auto at = [&](std::size_t index) { return places.begin() + static_cast<std::ptrdiff_t>(index); };
  return BoxesOf({at(first), at(last)}, document.Items[piece.Item].Box);
}

std::size_t CharacterAt(const Document& document, const ReadPiece& piece, QPointF point) {
  if (IsInPicture(piece)) return PlacedText(document, piece).CharacterAt(point);
  if (IsTick(document, piece))
    return point.x() < BoxOfLine(document, piece).center().x() ? 0 : CharacterCount(document, piece);
  return CharacterIn(PrintedPlaces(document, piece.Item), point.x());
}

std::size_t CharacterCount(const Document& document, const ReadPiece& piece) {
  const std::string_view text = TextOf(document, piece);
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); ++count) NextCharacter(text, offset);
  return count;
}

}  // namespace tarvis
