#include "preview/text/text_selection.h"

#include <QList>
#include <algorithm>
#include <iterator>
#include <limits>

#include "preview/text/text_geometry.h"

namespace tarvis {
namespace {

QList<uint> CharactersOf(const Document& document, const ReadPiece& piece) {
  return StringOf(document, piece).toUcs4();
}

// How far `point` is from `box`; beside its line counts as nearer than above or below.
double Distance(const QRectF& box, QPointF point) {
  constexpr double LineWeight = 4;
  const double across = std::max({box.left() - point.x(), point.x() - box.right(), 0.0});
  const double down = std::max({box.top() - point.y(), point.y() - box.bottom(), 0.0});
  return across + LineWeight * down;
}

// Adds the text of a piece to the rows where it belongs.
void AddPiece(CopiedRows& rows, const ReadPiece& piece, const QString& text) {
  const bool opensRow = piece.Before == Join::Line || rows.empty();
  if (opensRow) rows.emplace_back();
  std::vector<QString>& cells = rows.back().Cells;
  const bool isWhole = piece.Before == Join::Line || (piece.Before == Join::Cell && !opensRow);
  if (isWhole) cells.insert(cells.end(), piece.EmptyCells, QString());
  if (opensRow || piece.Before == Join::Cell) {
    cells.push_back(text);
  } else {
    cells.back() += (piece.Before == Join::Wrap ? QLatin1Char(' ') : QLatin1Char('\n')) + text;
  }
}

}  // namespace

TextPosition TextSelection::PositionAt(int page, QPointF point) const {
  const PageText& text = text_.Page(page);
  const Document& document = text_.Source();
  TextPosition best{page, 0, 0};
  double bestDistance = std::numeric_limits<double>::max();
  for (std::size_t piece = 0; piece < text.Pieces.size(); ++piece) {
    const double distance = Distance(BoxOfLine(document, text.Pieces[piece]), point);
    if (distance >= bestDistance) continue;
    bestDistance = distance;
    best.Piece = piece;
  }
  if (!text.Pieces.empty()) best.Character = CharacterAt(document, text.Pieces[best.Piece], point);
  return best;
}

void TextSelection::Start(int page, QPointF point) {
  anchor_ = end_ = PositionAt(page, point);
}

void TextSelection::ExtendTo(int page, QPointF point) {
  end_ = PositionAt(page, point);
}

void TextSelection::SelectWord(int page, QPointF point) {
  anchor_ = end_ = PositionAt(page, point);
  const PageText& text = text_.Page(page);
  if (text.Pieces.empty()) return;
  const QList<uint> characters = CharactersOf(text_.Source(), text.Pieces[anchor_.Piece]);
  const auto isWord = [&](std::size_t index) {
    return IsWordCharacter(characters[static_cast<qsizetype>(index)]);
  };
  const auto count = static_cast<std::size_t>(characters.size());
  while (anchor_.Character > 0 && isWord(anchor_.Character - 1)) --anchor_.Character;
  while (end_.Character < count && isWord(end_.Character)) ++end_.Character;
}

void TextSelection::SelectRow(int page, QPointF point) {
  anchor_ = end_ = PositionAt(page, point);
  const std::vector<ReadPiece>& pieces = text_.Page(page).Pieces;
  if (pieces.empty()) return;
  while (anchor_.Piece > 0 && pieces[anchor_.Piece].Before != Join::Line) --anchor_.Piece;
  while (end_.Piece + 1 < pieces.size() && pieces[end_.Piece + 1].Before != Join::Line) ++end_.Piece;
  anchor_.Character = 0;
  end_.Character = CharacterCount(text_.Source(), pieces[end_.Piece]);
}

void TextSelection::SelectAll() {
  anchor_ = end_ = {};
  const int pages = static_cast<int>(text_.Source().Pages.size());
  if (pages > 0) end_ = {pages, 0, 0};
}

void TextSelection::Select(const TextPosition& from, const TextPosition& to) {
  anchor_ = from;
  end_ = to;
}

std::pair<int, QPointF> TextSelection::EndPlace() const {
  constexpr std::pair<int, QPointF> Nowhere{-1, {}};
  if (end_.Page >= static_cast<int>(text_.Source().Pages.size())) return Nowhere;
  const std::vector<ReadPiece>& pieces = text_.Page(end_.Page).Pieces;
  if (end_.Piece >= pieces.size()) return Nowhere;
  return {end_.Page, BoxOfLine(text_.Source(), pieces[end_.Piece]).center()};
}

bool TextSelection::HasTextBeside(int page, QPointF point) const {
  constexpr double Tolerance = 60;  // twips
  const std::vector<ReadPiece>& pieces = text_.Page(page).Pieces;
  return std::any_of(pieces.begin(), pieces.end(), [&](const ReadPiece& piece) {
    const QRectF line = BoxOfLine(text_.Source(), piece);
    return point.y() > line.top() - Tolerance && point.y() < line.bottom() + Tolerance;
  });
}

TextSelection::Part TextSelection::PartOf(int page, std::size_t piece, const ReadPiece& read) const {
  const TextPosition first = First();
  const TextPosition last = Last();
  if (TextPosition{page, piece, std::numeric_limits<std::size_t>::max()} < first) return {};
  if (TextPosition{page, piece, 0} >= last) return {};
  const std::size_t count = CharacterCount(text_.Source(), read);
  const bool startsHere = first.Page == page && first.Piece == piece;
  const bool endsHere = last.Page == page && last.Piece == piece;
  return {startsHere ? first.Character : 0, endsHere ? last.Character : count};
}

std::vector<QRectF> TextSelection::Boxes(int page) const {
  std::vector<QRectF> boxes;
  if (IsEmpty() || page < First().Page || page > Last().Page) return boxes;
  const PageText& text = text_.Page(page);
  for (std::size_t piece = 0; piece < text.Pieces.size(); ++piece) {
    const Part part = PartOf(page, piece, text.Pieces[piece]);
    if (part.First < part.End) {
      std::ranges::copy(BoxesOfCharacters(text_.Source(), text.Pieces[piece], part.First, part.End),
                        std::back_inserter(boxes));
    }
  }
  return boxes;
}

void TextSelection::AddRowsOf(int page, CopiedRows& rows) const {
  const PageText& text = text_.Page(page);
  for (std::size_t piece = 0; piece < text.Pieces.size(); ++piece) {
    const Part part = PartOf(page, piece, text.Pieces[piece]);
    if (part.First >= part.End) continue;
    const QList<uint> characters = CharactersOf(text_.Source(), text.Pieces[piece]);
    QString selected;
    for (std::size_t index = part.First; index < part.End; ++index) {
      const auto character = static_cast<char32_t>(characters[static_cast<qsizetype>(index)]);
      selected += QString::fromUcs4(&character, 1);
    }
    AddPiece(rows, text.Pieces[piece], selected);
  }
}

CopiedRows TextSelection::Rows() const {
  CopiedRows rows;
  if (IsEmpty()) return rows;
  const int pages = static_cast<int>(text_.Source().Pages.size());
  for (int page = First().Page; page <= std::min(Last().Page, pages - 1); ++page) AddRowsOf(page, rows);
  return rows;
}

}  // namespace tarvis
