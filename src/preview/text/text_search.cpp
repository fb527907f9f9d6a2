#include "preview/text/text_search.h"

#include <algorithm>
#include <iterator>

#include "preview/text/text_geometry.h"
#include "text/normal_form.h"

namespace tarvis {
namespace {

// The text of one cell as it is compared, with the places where its lines start.
struct CellText {
  QString Text;
  struct Line {
    qsizetype Start;
    ReadPiece Piece;
    FoldedText Folded;
    std::size_t Index = 0;  // of the page's pieces
  };
  std::vector<Line> Lines;
};

QString ToString(const std::u16string& units) {
  return QString::fromUtf16(units.data(), static_cast<qsizetype>(units.size()));
}

// The character of which `text` has a unit at `index`: one beyond 16 bits has two.
char32_t CharacterAround(const QString& text, qsizetype index) {
  const qsizetype first = text[index].isLowSurrogate() && index > 0 ? index - 1 : index;
  const bool isPair =
      text[first].isHighSurrogate() && first + 1 < text.size() && text[first + 1].isLowSurrogate();
  return isPair ? QChar::surrogateToUcs4(text[first], text[first + 1]) : text[index].unicode();
}

bool IsWholeWord(const QString& text, qsizetype start, qsizetype length) {
  const qsizetype end = start + length;
  const auto isWord = [&text](qsizetype index) { return IsWordCharacter(CharacterAround(text, index)); };
  const bool startsInside = start > 0 && isWord(start - 1) && isWord(start);
  const bool endsInside = end < text.size() && isWord(end) && isWord(end - 1);
  return !startsInside && !endsInside;
}

class Searcher {
 public:
  Searcher(const Document& document, const QString& wanted, const SearchOptions& options)
      : document_(document),
        wanted_(ToString(Fold(wanted.toStdString(), options.CaseMatters).Units)),
        options_(options) {}

  void SearchPage(int page, const PageText& text, std::vector<SearchHit>& hits) {
    CellText cell;
    for (const ReadPiece& piece : text.Pieces) {
      const bool sameCell = piece.Before == Join::Wrap || piece.Before == Join::Break;
      if (!sameCell) {
        SearchCell(page, cell, hits);
        cell.Text.clear();
        cell.Lines.clear();
      }
      if (!cell.Lines.empty()) cell.Text += QLatin1Char(' ');
      cell.Lines.push_back({cell.Text.size(), piece, Fold(TextOf(document_, piece), options_.CaseMatters),
                            static_cast<std::size_t>(&piece - text.Pieces.data())});
      cell.Text += ToString(cell.Lines.back().Folded.Units);
    }
    SearchCell(page, cell, hits);
  }

 private:
  void SearchCell(int page, const CellText& cell, std::vector<SearchHit>& hits) const {
    if (wanted_.isEmpty()) return;
    for (qsizetype at = cell.Text.indexOf(wanted_); at >= 0;) {
      const bool counts = !options_.WholeWords || IsWholeWord(cell.Text, at, wanted_.size());
      if (counts) hits.push_back(HitAt(page, cell, at));
      at = cell.Text.indexOf(wanted_, counts ? at + wanted_.size() : at + 1);
    }
  }

  // A hit may begin with the blank before a line.
  SearchHit HitAt(int page, const CellText& cell, qsizetype place) const {
    std::size_t index = 0;
    while (index + 1 < cell.Lines.size() && cell.Lines[index + 1].Start <= place + 1) ++index;
    const CellText::Line& line = cell.Lines[index];
    const auto unit = static_cast<std::size_t>(std::max<qsizetype>(0, place - line.Start));
    return {page, BoxesOf(cell, place, place + wanted_.size()), line.Index, line.Folded.FirstOf(unit)};
  }

  std::vector<QRectF> BoxesOf(const CellText& cell, qsizetype start, qsizetype end) const {
    std::vector<QRectF> boxes;
    for (std::size_t line = 0; line < cell.Lines.size(); ++line) {
      const qsizetype first = cell.Lines[line].Start;
      const qsizetype last = line + 1 < cell.Lines.size() ? cell.Lines[line + 1].Start - 1 : cell.Text.size();
      if (start >= last || end <= first) continue;
      const auto unit = [first](qsizetype place) { return static_cast<std::size_t>(place - first); };
      const FoldedText& folded = cell.Lines[line].Folded;
      std::ranges::copy(
          BoxesOfCharacters(document_, cell.Lines[line].Piece, folded.FirstOf(unit(std::max(start, first))),
                            folded.EndOf(unit(std::min(end, last) - 1))),
          std::back_inserter(boxes));
    }
    return boxes;
  }

  const Document& document_;
  const QString wanted_;  // folded
  const SearchOptions& options_;
};

}  // namespace

std::vector<SearchHit> Search(DocumentText& text, const QString& wanted, const SearchOptions& options) {
  std::vector<SearchHit> hits;
  if (wanted.isEmpty()) return hits;
  Searcher searcher(text.Source(), wanted, options);
  for (int page = 0; page < static_cast<int>(text.Source().Pages.size()); ++page) {
    searcher.SearchPage(page, text.Page(page), hits);
  }
  return hits;
}

}  // namespace tarvis
