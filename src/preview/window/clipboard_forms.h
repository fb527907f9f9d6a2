// What is copied, on the clipboard in all forms that other programs may take.
#pragma once

#include "preview/output/graph_forms.h"
#include "preview/text/copied_rows.h"

namespace tarvis {

// As text with tabs, and as tables: a spreadsheet and a letter both get a table.
void CopyTable(const CopiedRows& rows);
// As text alone, a line a cell.
void CopyColumn(const CopiedRows& rows);
// As vectors in two formats, and as pixels.
void CopyGraph(const Document& document, const PlacedGraph& graph);

}  // namespace tarvis
