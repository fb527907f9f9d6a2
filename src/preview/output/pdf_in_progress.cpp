#include "preview/output/pdf_in_progress.h"

#include <algorithm>
#include <optional>
#include <qpdf/Pl_String.hh>
#include <qpdf/QPDFWriter.hh>

#include "preview/output/pdf_archive.h"
#include "preview/output/pdf_attachments.h"
#include "preview/output/pdf_metadata.h"
#include "preview/output/pdf_structure.h"

namespace tarvis {
namespace {

// Letters and marks are written as on the pages, so that a search finds them in the same way.
QPDFObjectHandle TextString(const QString& text) {
  return QPDFObjectHandle::newUnicodeString(text.normalized(QString::NormalizationForm_C).toStdString());
}

QPDFObjectHandle Name(const char* name) {
  return QPDFObjectHandle::newName(name);
}

// Height above the lower edge of the paper of a place `top` twips below the upper edge of a page.
QPDFObjectHandle Height(const PdfSheets& sheets, float top) {
  return Points(sheets.Paper.height() - top * sheets.Scale);
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

// Part 3 is part 2 with files of any kind in it, level A is level U with a structure.
PdfConformance ConformanceOf(const PdfInfo& info, bool isTagged) {
  return {info.Data.empty() ? 2 : 3, isTagged ? 'A' : 'U', isTagged};
}

// With the structure, if there is one.
std::string Written(QPDF& pdf, const PdfStructure* structure) {
  std::string bytes;
  Pl_String sink("pdf", nullptr, bytes);
  QPDFWriter writer(pdf);
  writer.setOutputPipeline(&sink);
  writer.setDeterministicID(true);
  writer.setObjectStreamMode(qpdf_o_generate);
  writer.setMinimumPDFVersion("1.7");
  writer.setNewlineBeforeEndstream(true);
  writer.write();
  return structure == nullptr ? bytes : structure->AddTo(std::move(bytes), writer);
}

}  // namespace

PdfInProgress::PdfInProgress(const PdfLook& look, int codePage, const PdfTagPlan* tags)
    : look_(look), tags_(tags), pages_(pdf_, look, codePage, tags) {
  pdf_.emptyPDF();
}

std::string PdfInProgress::Finish(const Document& document, const PdfInfo& info) {
  pages_.Finish(document);
  const PdfSheets sheets{look_, pages_.Sheets()};
  std::optional<PdfStructure> structure;
  if (tags_ != nullptr) structure.emplace(pdf_, *tags_, sheets, pages_.Marks());
  AddOutline(pdf_, document, sheets);
  AddOpening(pdf_, sheets);
  MakeArchive(pdf_, document.CodePage);
  AttachData(pdf_, info.Data, info.Created);
  AddMetadata(pdf_, info, ConformanceOf(info, tags_ != nullptr));
  return Written(pdf_, structure ? &*structure : nullptr);
}

}  // namespace tarvis
