// A selected stretch of the document's text, in reading order, over any number of pages.
#pragma once

#include <QPointF>
#include <QRectF>
#include <compare>
#include <utility>
#include <vector>

#include "preview/paint/document_text.h"
#include "preview/text/copied_rows.h"

namespace tarvis {

// Between two characters: before character `Character` of piece `Piece` of a page.
struct TextPosition {
  int Page = 0;
  std::size_t Piece = 0;
  std::size_t Character = 0;
  auto operator<=>(const TextPosition&) const = default;
};

class TextSelection {
 public:
  // `text` must outlive it.
  explicit TextSelection(DocumentText& text) : text_(text) {}

  bool IsEmpty() const { return anchor_ == end_; }
  void Clear() { anchor_ = end_ = {}; }
  // Starts at the place of the page (twips) that is nearest to `point`.
  void Start(int page, QPointF point);
  void ExtendTo(int page, QPointF point);
  void SelectWord(int page, QPointF point);
  // All cells of the row, with all their lines.
  void SelectRow(int page, QPointF point);
  void SelectAll();
  void Select(const TextPosition& from, const TextPosition& to);
  TextPosition Anchor() const { return anchor_; }
  TextPosition End() const { return end_; }

  // Where the selection ends: a page and a point on the line there; below 0 on a page without text.
  std::pair<int, QPointF> EndPlace() const;

  // Whether there is text at the height of `point`.
  bool HasTextBeside(int page, QPointF point) const;

  // What is selected of a page, for marking.
  std::vector<QRectF> Boxes(int page) const;
  [[nodiscard]] CopiedRows Rows() const;
  QString Text() const { return ToPlainText(Rows()); }

 private:
  TextPosition PositionAt(int page, QPointF point) const;
  TextPosition First() const { return std::min(anchor_, end_); }
  TextPosition Last() const { return std::max(anchor_, end_); }
  // The characters of a piece that are selected.
  struct Part {
    std::size_t First = 0;
    std::size_t End = 0;
  };
  Part PartOf(int page, std::size_t piece, const ReadPiece& read) const;
  void AddRowsOf(int page, CopiedRows& rows) const;

  DocumentText& text_;
  TextPosition anchor_;
  TextPosition end_;
};

}  // namespace tarvis
