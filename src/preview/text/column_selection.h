// A selected column of a table: all cells that one control of a report has printed, without the titles above
// them.
#pragma once

#include <QPointF>
#include <QRectF>
#include <vector>

#include "preview/text/copied_rows.h"
#include "report/engine/document.h"

namespace tarvis {

class ColumnSelection {
 public:
  // `document` must outlive it.
  explicit ColumnSelection(const Document& document) : document_(document) {}

  bool IsEmpty() const { return cells_.empty(); }
  void Clear() { cells_.clear(); }
  // Selects the column of the cell at `point` (twips), over all pages of its part of the document; nothing
  // where there is no cell.
  void Select(int page, QPointF point);

  // The cells on a page, for marking.
  std::vector<QRectF> Boxes(int page) const;
  // A row for each cell, also for one without text.
  [[nodiscard]] CopiedRows Rows() const;

 private:
  struct Cell {
    int Page = 0;
    const Item* Frame = nullptr;
  };

  const Item* FrameAt(int page, QPointF point) const;
  void AddPage(int page, const Item& model, double from, double to);
  QString TextIn(const Cell& cell) const;

  const Document& document_;
  std::vector<Cell> cells_;  // in the order of the pages
};

}  // namespace tarvis
