// Finding text in a whole document.
#pragma once

#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

#include "preview/paint/document_text.h"

namespace tarvis {

struct SearchOptions {
  bool CaseMatters = false;
  bool WholeWords = false;
};

struct SearchHit {
  int Page = 0;
  std::vector<QRectF> Boxes;  // twips; several if the hit goes over lines of a cell
  std::size_t Piece = 0;      // where it begins, an index of the page's pieces
  std::size_t Character = 0;  // of that piece
};

// The places of one search, shared by those that show them.
using SearchHits = std::shared_ptr<const std::vector<SearchHit>>;

// All hits in reading order. A hit lies within one cell; where the cell wraps, a blank takes the place of the
// line's end. Other ways to write the same letters are found, too: full and half width, marks apart,
// ligatures.
[[nodiscard]] std::vector<SearchHit> Search(DocumentText& text, const QString& wanted,
                                            const SearchOptions& options);

}  // namespace tarvis
