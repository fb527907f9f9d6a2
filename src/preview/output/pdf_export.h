// A composed document as a PDF file: real text in embedded subset fonts, contents as outline, metadata, all
// as archives ask for.
#pragma once

#include <QSizeF>
#include <QString>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "preview/output/pdf_info.h"
#include "preview/output/progress.h"
#include "report/engine/document.h"

namespace tarvis {

// The sheets of a PDF: which pages of the document, on which paper.
struct PdfSheets {
  std::vector<int> Pages;  // indexes, in the order of the sheets; a page may be there more than once
  QSizeF Paper;            // twips
  double Scale = 1;        // below 1 the pages are shrunk towards their top left corner
  bool Greys = false;

  // Every page once, as it was composed.
  static PdfSheets AllOf(const Document& document);
};

// Whether a file may replace what is at `path`: only nothing, or an ordinary file, also through a link.
[[nodiscard]] bool CanBeReplaced(const std::filesystem::path& path);

// The bytes of the PDF; empty if `progress` cancels.
[[nodiscard]] std::string MakePdf(const Document& document, const PdfSheets& sheets, const PdfInfo& info,
                                  const Progress& progress);

// Writes to a temporary file beside `path` first and replaces `path` only by a whole file, so that nothing is
// lost on a failure or when `progress` cancels. Returns an error text for the user, empty if all is well or
// cancelled.
[[nodiscard]] QString ExportPdf(const Document& document, const PdfSheets& sheets, const QString& path,
                                const PdfInfo& info, const Progress& progress);
// Its last step, for bytes that are there already.
[[nodiscard]] QString WritePdf(std::string_view pdf, const std::filesystem::path& path);
// The same with all pages.
[[nodiscard]] QString ExportPdf(const Document& document, const QString& path, const PdfInfo& info,
                                const Progress& progress);

}  // namespace tarvis
