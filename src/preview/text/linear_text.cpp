#include "preview/text/linear_text.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <utility>

#include "preview/text/text_geometry.h"

namespace tarvis {
namespace {

constexpr QChar LineEnd = QLatin1Char('\n');

QString Separator(const ReadPiece& piece, bool first) {
  if (piece.Before == Join::Wrap) return QStringLiteral(" ");
  if (piece.Before == Join::Break) return LineEnd;
  const QString emptyCells(piece.EmptyCells, QLatin1Char('\t'));
  if (piece.Before == Join::Cell) return QLatin1Char('\t') + emptyCells;
  return first ? emptyCells : LineEnd + emptyCells;
}

}  // namespace

void LinearText::Read() {
  if (std::exchange(isRead_, true)) return;
  for (int page = 0; page < static_cast<int>(source_.Source().Pages.size()); ++page) {
    const std::vector<ReadPiece>& pieces = source_.Page(page).Pieces;
    for (std::size_t index = 0; index < pieces.size(); ++index) {
      text_ += Separator(pieces[index], pieces_.empty());
      const QString text = StringOf(source_.Source(), pieces[index]);
      pieces_.push_back({page, index, static_cast<int>(text_.size()), static_cast<int>(text.size())});
      text_ += text;
    }
  }
}

const QString& LinearText::Text() {
  Read();
  return text_;
}

const LinearText::Piece* LinearText::PieceAt(int offset) {
  Read();
  const auto next =
      std::ranges::upper_bound(pieces_, offset, {}, [](const Piece& piece) { return piece.Start; });
  if (pieces_.empty()) return nullptr;
  return next == pieces_.begin() ? &pieces_.front() : &*std::prev(next);
}

int LinearText::OffsetOf(const TextPosition& position) {
  Read();
  const std::pair place(position.Page, position.Piece);
  const auto piece = std::ranges::lower_bound(
      pieces_, place, {}, [](const Piece& entry) { return std::pair(entry.Page, entry.Index); });
  if (piece == pieces_.end()) return static_cast<int>(text_.size());
  if (std::pair(piece->Page, piece->Index) != place) return piece->Start;
  return piece->Start + static_cast<int>(UnitsOf(text_.mid(piece->Start, piece->Length), position.Character));
}

TextPosition LinearText::PositionOf(int offset) {
  const Piece* piece = PieceAt(offset);
  if (piece == nullptr) return {};
  const int inside = std::clamp(offset - piece->Start, 0, piece->Length);
  const auto characters = text_.mid(piece->Start, inside).toUcs4().size();
  return {piece->Page, piece->Index, static_cast<std::size_t>(characters)};
}

// Up to and including the next of the characters `ends`.
TextSpan LinearText::Between(int offset, const QString& ends) const {
  const auto isEnd = [&ends](QChar character) { return ends.contains(character); };
  const auto place = text_.begin() + offset;
  const auto start = std::find_if(std::make_reverse_iterator(place), text_.rend(), isEnd).base();
  const auto end = std::find_if(place, text_.end(), isEnd);
  const auto length = static_cast<int>(end - text_.begin());
  return {static_cast<int>(start - text_.begin()), end == text_.end() ? length : length + 1};
}

// Words and characters don't go over the ends of lines.
TextSpan LinearText::InLine(int offset, TextUnit unit) const {
  const TextSpan line = Between(offset, LineEnd);
  const QString text = text_.mid(line.Start, line.End - line.Start);
  QTextBoundaryFinder finder(
      unit == TextUnit::Word ? QTextBoundaryFinder::Word : QTextBoundaryFinder::Grapheme, text);
  finder.setPosition(offset - line.Start);
  const auto start = finder.isAtBoundary() ? finder.position() : finder.toPreviousBoundary();
  finder.setPosition(offset - line.Start);
  const auto end = finder.toNextBoundary();
  return {line.Start + static_cast<int>(start), end < 0 ? line.End : line.Start + static_cast<int>(end)};
}

TextSpan LinearText::UnitAt(int offset, TextUnit unit) {
  Read();
  const int count = static_cast<int>(text_.size());
  offset = std::clamp(offset, 0, count);
  if (unit == TextUnit::All) return {0, count};
  if (offset == count && unit != TextUnit::Line && unit != TextUnit::Cell) return {count, count};
  if (unit == TextUnit::Line) return Between(offset, LineEnd);
  if (unit == TextUnit::Cell) return Between(offset, QStringLiteral("\n\t"));
  return InLine(offset, unit);
}

TextSpan LinearText::UnitBefore(int offset, TextUnit unit) {
  const int start = UnitAt(offset, unit).Start;
  return start == 0 ? TextSpan{} : UnitAt(start - 1, unit);
}

TextSpan LinearText::UnitAfter(int offset, TextUnit unit) {
  const int end = UnitAt(offset, unit).End;
  return end >= static_cast<int>(text_.size()) ? TextSpan{end, end} : UnitAt(end, unit);
}

}  // namespace tarvis
