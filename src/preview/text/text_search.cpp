#include "preview/text/text_search.h"

#include <QList>
#include <algorithm>

#include "preview/text/text_geometry.h"

namespace tarvis {
namespace {

// The text of one cell with the places where its lines start.
struct CellText {
  QString Text;
  struct Line {
    qsizetype Start;
    ReadPiece Piece;
  };
  std::vector<Line> Lines;
};

bool IsWordCharacter(QChar character) {
  return character.isLetterOrNumber() || character == QLatin1Char('_');
}

bool IsWholeWord(const QString& text, qsizetype start, qsizetype length) {
  const qsizetype end = start + length;
  const bool startsInside = start > 0 && IsWordCharacter(text[start - 1]) && IsWordCharacter(text[start]);
  const bool endsInside = end < text.size() && IsWordCharacter(text[end]) && IsWordCharacter(text[end - 1]);
  return !startsInside && !endsInside;
}

QString WordsOf(const Document& document, const ReadPiece& piece) {
  const std::string_view text = TextOf(document, piece);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

class Searcher {
 public:
  Searcher(const Document& document, const QString& wanted, const SearchOptions& options)
      : document_(document),
        wanted_(wanted),
        options_(options),
        caseMode_(options.CaseMatters ? Qt::CaseSensitive : Qt::CaseInsensitive) {}

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
      cell.Lines.push_back({cell.Text.size(), piece});
      cell.Text += WordsOf(document_, piece);
    }
    SearchCell(page, cell, hits);
  }

 private:
  void SearchCell(int page, const CellText& cell, std::vector<SearchHit>& hits) const {
    for (qsizetype at = cell.Text.indexOf(wanted_, 0, caseMode_); at >= 0;) {
      const bool counts = !options_.WholeWords || IsWholeWord(cell.Text, at, wanted_.size());
      if (counts) hits.push_back({page, BoxesOf(cell, at, at + wanted_.size())});
      at = cell.Text.indexOf(wanted_, counts ? at + wanted_.size() : at + 1, caseMode_);
    }
  }

  std::vector<QRectF> BoxesOf(const CellText& cell, qsizetype start, qsizetype end) const {
    std::vector<QRectF> boxes;
    for (std::size_t line = 0; line < cell.Lines.size(); ++line) {
      const qsizetype first = cell.Lines[line].Start;
      const qsizetype last = line + 1 < cell.Lines.size() ? cell.Lines[line + 1].Start - 1 : cell.Text.size();
      if (start >= last || end <= first) continue;
      // Geometry counts characters, strings count UTF-16 units.
      const auto characters = [&](qsizetype unit) {
        return static_cast<std::size_t>(QStringView(cell.Text).mid(first, unit - first).toUcs4().size());
      };
      boxes.push_back(BoxOfCharacters(document_, cell.Lines[line].Piece, characters(std::max(start, first)),
                                      characters(std::min(end, last))));
    }
    return boxes;
  }

  const Document& document_;
  const QString& wanted_;
  const SearchOptions& options_;
  Qt::CaseSensitivity caseMode_;
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
