// A composed document on paper. Pages come from the document alone: the report is never run again.
#pragma once

#include <QSizeF>
#include <QString>
#include <vector>

#include "preview/output/pdf_export.h"
#include "report/engine/document.h"

class QPrinter;

namespace tarvis {

// Whether the document's pages are shrunk to the size of the paper.
enum class PrintScale { AsComposed, FitToPaper };

// By how much the printable area of the printer's paper is too narrow and too short for the document, in
// twips; 0 where all fits.
[[nodiscard]] QSizeF MissingRoom(const Document& document, const QPrinter& printer);

// The sheets of a PDF that is to look as `printer` is set.
[[nodiscard]] PdfSheets SheetsLike(const Document& document, const QPrinter& printer, std::vector<int> pages,
                                   PrintScale scale);

// Prints the pages of these indexes, in this order. Returns an error text for the user, empty if all is well
// or cancelled.
[[nodiscard]] QString PrintDocument(const Document& document, const std::vector<int>& pages,
                                    QPrinter& printer, PrintScale scale, const Progress& progress);

}  // namespace tarvis
