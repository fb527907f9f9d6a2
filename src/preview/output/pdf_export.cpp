#include "preview/output/pdf_export.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/files/settle_file.h"
#include "preview/output/pdf_in_progress.h"
#include "printfiles/replace_file.h"

namespace tarvis {
namespace {

// A file that this user may not write is not replaced either, though its folder would allow it.
bool IsProtected(const std::filesystem::path& path) {
  const QFileInfo old(path);
  return old.exists() && !old.isWritable();
}

QString Text(const char* text) {
  return QCoreApplication::translate("PdfExport", text);
}

}  // namespace

bool CanBeReplaced(const std::filesystem::path& path) {
  std::error_code ignored;  // what can't be looked at can't be replaced
  const bool isLink = std::filesystem::is_symlink(path, ignored);
  const std::filesystem::file_type type = std::filesystem::status(path, ignored).type();
  return type == std::filesystem::file_type::regular ||
         (type == std::filesystem::file_type::not_found && !isLink);
}

std::string MakePdf(const Document& document, const PdfSheets& sheets, const PdfInfo& info,
                    const Progress& progress) {
  std::optional<PdfTagPlan> tags;
  if (info.IsTagged) tags.emplace(document, sheets.Pages);
  PdfInProgress pdf(sheets, document.CodePage, tags ? &*tags : nullptr);
  const int count = static_cast<int>(sheets.Pages.size());
  int done = 0;
  for (const int page : sheets.Pages) {
    if (!progress(done++, count)) return {};
    pdf.Add(document, static_cast<std::size_t>(page));
  }
  std::string bytes = pdf.Finish(document, info);
  return progress(count, count) ? bytes : std::string();
}

QString WritePdf(std::string_view pdf, const std::filesystem::path& path) {
  const QString name = QString::fromStdString(path.string());
  if (!CanBeReplaced(path)) return Text("\"%1\" is not an ordinary file and is not replaced.").arg(name);
  std::error_code error = std::make_error_code(std::errc::permission_denied);
  if (!IsProtected(path) && ReplaceFile(path, pdf, SettleFile, error)) return {};
  return Text("\"%1\" can't be written: %2").arg(name, QString::fromStdString(error.message()));
}

QString ExportPdf(const Document& document, const PdfSheets& sheets, const QString& path, const PdfInfo& info,
                  const Progress& progress) {
  const std::string pdf = MakePdf(document, sheets, info, progress);
  return pdf.empty() ? QString() : WritePdf(pdf, QFileInfo(path).filesystemFilePath());
}

QString ExportPdf(const Document& document, const QString& path, const PdfInfo& info,
                  const Progress& progress) {
  return ExportPdf(document, PdfSheets::AllOf(document), path, info, progress);
}

}  // namespace tarvis
