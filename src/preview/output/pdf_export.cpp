#include "preview/output/pdf_export.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>
#include <map>
#include <numeric>
#include <optional>
#include <qpdf/Pl_String.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <system_error>

#include "platform/files/settle_file.h"
#include "preview/output/pdf_archive.h"
#include "preview/output/pdf_attachments.h"
#include "preview/output/pdf_greys.h"
#include "preview/output/pdf_metadata.h"
#include "preview/output/pdf_resources.h"
#include "preview/output/reading_order.h"
#include "preview/paint/toolkit_geometry.h"
#include "printfiles/replace_file.h"

namespace tarvis {
namespace {

// Letters and marks are written as on the pages, so that a search finds them in the same way.
QPDFObjectHandle TextString(const QString& text) {
  return QPDFObjectHandle::newUnicodeString(text.normalized(QString::NormalizationForm_C).toStdString());
}

QPDFObjectHandle Name(const char* name) {
  return QPDFObjectHandle::newName(name);
}

QPDFObjectHandle Points(double twips) {
  return QPDFObjectHandle::newReal(twips / TwipsPerPoint, 2);
}

// Height above the lower edge of the paper of a place `top` twips below the upper edge of a page.
QPDFObjectHandle Height(const PdfSheets& sheets, float top) {
  return Points(sheets.Paper.height() - top * sheets.Scale);
}

QPDFObjectHandle MakePage(QPDF& pdf, const PdfSheets& sheets, const QPDFObjectHandle& content) {
  QPDFObjectHandle page = QPDFObjectHandle::newDictionary();
  page.replaceKey("/Type", Name("/Page"));
  const QPDFObjectHandle zero = QPDFObjectHandle::newInteger(0);
  page.replaceKey("/MediaBox", QPDFObjectHandle::newArray({zero, zero, Points(sheets.Paper.width()),
                                                           Points(sheets.Paper.height())}));
  page.replaceKey("/Contents", content);
  return pdf.makeIndirectObject(page);
}

// Whether the document has a glyph for each character; nothing if cancelled.
std::optional<bool> AddPages(QPDF& pdf, const Document& document, const PdfSheets& sheets,
                             const Progress& progress) {
  ReportFont& font = ReportFont::OfThisThread(document.CodePage);
  PdfGlyphs glyphs(font);
  PdfPictures pictures;
  PdfContents contents;
  std::vector<QPDFObjectHandle> pages;
  std::map<int, QPDFObjectHandle> streams;  // further copies of a page share its content
  const int count = static_cast<int>(sheets.Pages.size());
  for (const int page : sheets.Pages) {
    if (!progress(static_cast<int>(pages.size()), count)) return {};
    const auto [stream, isNew] = streams.try_emplace(page);
    if (isNew) {
      PdfCanvas canvas(sheets.Paper.height(), sheets.Scale, glyphs, pictures);
      PaintInReadingOrder(document, static_cast<std::size_t>(page), canvas);
      stream->second = pdf.newStream();
      contents.Add(stream->second, canvas.Finish());
    }
    pages.push_back(MakePage(pdf, sheets, stream->second));
  }
  const PdfResources resources = MakeResources(pdf, glyphs, pictures, font, contents);
  contents.Finish();
  QPDFPageDocumentHelper helper(pdf);
  for (QPDFObjectHandle& page : pages) {
    page.replaceKey("/Resources", resources.Dictionary);
    helper.addPage(page, false);
  }
  return resources.HasAllGlyphs;
}

// The first sheet with a page; none if there is no such sheet.
std::optional<std::size_t> SheetOf(const PdfSheets& sheets, int page) {
  const auto sheet = std::find(sheets.Pages.begin(), sheets.Pages.end(), page);
  if (sheet == sheets.Pages.end()) return {};
  return static_cast<std::size_t>(sheet - sheets.Pages.begin());
}

// Contents entries whose pages are in the file. A parent whose own page isn't leads to the page of its first
// child.
std::vector<ContentsEntry> EntriesOf(const Document& document, const PdfSheets& sheets) {
  std::vector<ContentsEntry> entries;
  const ContentsEntry* lostParent = nullptr;
  for (const ContentsEntry& entry : document.Contents) {
    const bool isThere = SheetOf(sheets, entry.Page).has_value();
    if (entry.Level == 0) lostParent = isThere ? nullptr : &entry;
    if (!isThere) continue;
    if (entry.Level > 0 && lostParent != nullptr) {
      entries.push_back(entry);
      entries.back().Text = lostParent->Text;
      entries.back().Level = 0;
      lostParent = nullptr;
    }
    entries.push_back(entry);
  }
  return entries;
}

QPDFObjectHandle Destination(const PdfSheets& sheets, const ContentsEntry& entry,
                             const std::vector<QPDFObjectHandle>& pages) {
  return QPDFObjectHandle::newArray({pages.at(*SheetOf(sheets, entry.Page)), Name("/XYZ"),
                                     QPDFObjectHandle::newInteger(0), Height(sheets, entry.Top),
                                     QPDFObjectHandle::newNull()});
}

// Chains `children` below `parent` in both directions.
void Link(QPDFObjectHandle parent, std::vector<QPDFObjectHandle>& children) {
  if (children.empty()) return;
  for (std::size_t index = 0; index < children.size(); ++index) {
    children[index].replaceKey("/Parent", parent);
    if (index > 0) children[index].replaceKey("/Prev", children[index - 1]);
    if (index + 1 < children.size()) children[index].replaceKey("/Next", children[index + 1]);
  }
  parent.replaceKey("/First", children.front());
  parent.replaceKey("/Last", children.back());
  parent.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(children.size())));
}

void AddOutline(QPDF& pdf, const Document& document, const PdfSheets& sheets) {
  const std::vector<ContentsEntry> entries = EntriesOf(document, sheets);
  if (entries.empty()) return;
  const std::vector<QPDFObjectHandle> pages = pdf.getAllPages();
  QPDFObjectHandle root = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
  std::vector<QPDFObjectHandle> top;
  std::vector<QPDFObjectHandle> below;
  for (const ContentsEntry& entry : entries) {
    QPDFObjectHandle item = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    item.replaceKey("/Title", TextString(QString::fromStdString(entry.Text)));
    item.replaceKey("/Dest", Destination(sheets, entry, pages));
    if (entry.Level == 0 || top.empty()) {
      if (!top.empty()) Link(top.back(), below);
      below.clear();
      top.push_back(item);
    } else {
      below.push_back(item);
    }
  }
  Link(top.back(), below);
  Link(root, top);
  root.replaceKey("/Type", Name("/Outlines"));
  root.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(entries.size())));
  pdf.getRoot().replaceKey("/Outlines", root);
  pdf.getRoot().replaceKey("/PageMode", Name("/UseOutlines"));
}

// Viewers show the page numbers that are printed at the foot of the pages.
QPDFObjectHandle PageLabels(const PdfSheets& sheets) {
  QPDFObjectHandle runs = QPDFObjectHandle::newArray();
  for (std::size_t sheet = 0; sheet < sheets.Pages.size(); ++sheet) {
    const int number = sheets.Pages[sheet] + 1;
    if (sheet > 0 && sheets.Pages[sheet - 1] + 1 == sheets.Pages[sheet]) continue;
    runs.appendItem(QPDFObjectHandle::newInteger(static_cast<long long>(sheet)));
    runs.appendItem(QPDFObjectHandle::parse("<< /S /D /St " + std::to_string(number) + " >>"));
  }
  QPDFObjectHandle labels = QPDFObjectHandle::newDictionary();
  labels.replaceKey("/Nums", runs);
  return labels;
}

void AddOpening(QPDF& pdf, const PdfSheets& sheets) {
  const std::vector<QPDFObjectHandle> pages = pdf.getAllPages();
  if (pages.empty()) return;
  pdf.getRoot().replaceKey("/OpenAction", QPDFObjectHandle::newArray(
                                              {pages.front(), Name("/FitH"), Points(sheets.Paper.height())}));
  pdf.getRoot().replaceKey("/PageLabels", PageLabels(sheets));
}

// Part 3 is part 2 with files of any kind in it.
PdfConformance ConformanceOf(const PdfInfo& info) {
  return {info.Data.empty() ? 2 : 3, 'U'};
}

std::string Written(QPDF& pdf) {
  std::string bytes;
  Pl_String sink("pdf", nullptr, bytes);
  QPDFWriter writer(pdf);
  writer.setOutputPipeline(&sink);
  writer.setDeterministicID(true);
  writer.setObjectStreamMode(qpdf_o_generate);
  writer.setMinimumPDFVersion("1.7");
  writer.setNewlineBeforeEndstream(true);
  writer.write();
  return bytes;
}

// A file that this user may not write is not replaced either, though its folder would allow it.
bool IsProtected(const std::filesystem::path& path) {
  const QFileInfo old(path);
  return old.exists() && !old.isWritable();
}

QString Text(const char* text) {
  return QCoreApplication::translate("PdfExport", text);
}

}  // namespace

PdfSheets PdfSheets::AllOf(const Document& document) {
  PdfSheets sheets;
  sheets.Pages.resize(document.Pages.size());
  std::iota(sheets.Pages.begin(), sheets.Pages.end(), 0);
  sheets.Paper = PaperSizeOf(document);
  return sheets;
}

bool CanBeReplaced(const std::filesystem::path& path) {
  std::error_code ignored;  // what can't be looked at can't be replaced
  const bool isLink = std::filesystem::is_symlink(path, ignored);
  const std::filesystem::file_type type = std::filesystem::status(path, ignored).type();
  return type == std::filesystem::file_type::regular ||
         (type == std::filesystem::file_type::not_found && !isLink);
}

std::string MakePdf(const Document& document, const PdfSheets& sheets, const PdfInfo& info,
                    const Progress& progress) {
  QPDF pdf;
  pdf.emptyPDF();
  const std::optional<bool> hasAllGlyphs = AddPages(pdf, document, sheets, progress);
  if (!hasAllGlyphs) return {};
  AddOutline(pdf, document, sheets);
  AddOpening(pdf, sheets);
  MakeArchive(pdf, document.CodePage);
  AttachData(pdf, info.Data, info.Created);
  AddMetadata(pdf, info, *hasAllGlyphs ? std::optional(ConformanceOf(info)) : std::nullopt);
  if (sheets.Greys) TurnIntoGreys(pdf);
  const int count = static_cast<int>(sheets.Pages.size());
  std::string bytes = Written(pdf);
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
