#include "preview/output/pdf_export.h"

#include <QFileInfo>
#include <optional>

#include "preview/output/pdf_in_progress.h"
#include "preview/output/whole_file.h"

namespace tarvis {

std::string MakePdf(const Document& document, const PdfSheets& sheets, const PdfInfo& info,
                    const Progress& progress) {
  std::optional<PdfTagPlan> tags;
  if (info.IsTagged) tags.emplace(document, sheets.Pages);
  PdfInProgress pdf(sheets, document.CodePage, tags ? &*tags : nullptr);
  const int count = static_cast<int>(sheets.Pages.size());
  int done = 0;
  for (const int page : sheets.Pages) {
    if (!progress(done++, count)) return {};
    pdf.Add(document, static_cast<std::size_t>(page), static_cast<std::size_t>(page));
  }
  std::string bytes = pdf.Finish(document, info);
  if (!progress(count, count)) return {};
  return bytes;
}

QString ExportPdf(const Document& document, const PdfSheets& sheets, const QString& path, const PdfInfo& info,
                  const Progress& progress) {
  const std::string pdf = MakePdf(document, sheets, info, progress);
  return pdf.empty() ? QString() : WriteWholeFile(pdf, QFileInfo(path).filesystemFilePath());
}

QString ExportPdf(const Document& document, const QString& path, const PdfInfo& info,
                  const Progress& progress) {
  return ExportPdf(document, PdfSheets::AllOf(document), path, info, progress);
}

}  // namespace tarvis
