// The structure of a tagged PDF: headings, paragraphs, tables and figures as the composer knows them, each
// with the pieces of page content that show it.
#pragma once

#include <qpdf/QPDF.hh>

#include "preview/output/pdf_pages.h"
#include "preview/output/pdf_sheets.h"
#include "preview/output/pdf_tag_plan.h"

namespace tarvis {

// Writes the structure into `pdf`, whose pages are the sheets. The order of reading is that of the document,
// whatever the order of the sheets; further copies of pages are read after the first ones.
void AddStructure(QPDF& pdf, const PdfTagPlan& plan, const PdfSheets& sheets, const PdfMarks& marks);

}  // namespace tarvis
