// What is copied from pages: rows of cells, in the forms that other programs take.
#pragma once

#include <QString>
#include <vector>

namespace tarvis {

struct CopiedRow {
  std::vector<QString> Cells;  // one for a line that belongs to no table; LF between lines inside a cell
};

using CopiedRows = std::vector<CopiedRow>;

// LF between rows, tabs between cells: pasted into a spreadsheet, a table is a table again.
[[nodiscard]] QString ToPlainText(const CopiedRows& rows);

// Rows of several cells are tables, all others paragraphs: pasted into a letter, a table is a table again.
[[nodiscard]] QString ToHtml(const CopiedRows& rows);

}  // namespace tarvis
