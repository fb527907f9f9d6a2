// A composed document as a PDF file: real text in embedded subset fonts, contents as outline, metadata, all
// as archives ask for.
#pragma once

#include <QString>
#include <string>

#include "preview/output/pdf_info.h"
#include "preview/output/pdf_sheets.h"
#include "preview/output/progress.h"
#include "report/engine/document.h"

namespace tarvis {

// The bytes of the PDF; empty if `progress` cancels.
[[nodiscard]] std::string MakePdf(const Document& document, const PdfSheets& sheets, const PdfInfo& info,
                                  const Progress& progress);

// Writes the file whole or not at all, so that nothing is lost on a failure or when `progress` cancels.
// Returns an error text for the user, empty if all is well or cancelled.
[[nodiscard]] QString ExportPdf(const Document& document, const PdfSheets& sheets, const QString& path,
                                const PdfInfo& info, const Progress& progress);
// The same with all pages.
[[nodiscard]] QString ExportPdf(const Document& document, const QString& path, const PdfInfo& info,
                                const Progress& progress);

}  // namespace tarvis
