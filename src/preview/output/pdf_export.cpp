#include "preview/output/pdf_export.h"

#include <QCoreApplication>
#include <QSaveFile>
#include <QTimeZone>
#include <qpdf/Pl_Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "preview/output/pdf_resources.h"

namespace tarvis {
namespace {

QPDFObjectHandle Text(const QString& text) {
  return QPDFObjectHandle::newUnicodeString(text.toStdString());
}

QPDFObjectHandle Name(const char* name) {
  return QPDFObjectHandle::newName(name);
}

QPDFObjectHandle Points(float twips) {
  return QPDFObjectHandle::newReal(static_cast<double>(twips / TwipsPerPoint), 2);
}

QPDFObjectHandle MakePage(QPDF& pdf, const Document& document, const std::string& content) {
  QPDFObjectHandle page = QPDFObjectHandle::newDictionary();
  page.replaceKey("/Type", Name("/Page"));
  const QPDFObjectHandle zero = QPDFObjectHandle::newInteger(0);
  page.replaceKey("/MediaBox", QPDFObjectHandle::newArray({zero, zero, Points(document.Setup.Width),
                                                           Points(document.Setup.Height)}));
  page.replaceKey("/Contents", pdf.newStream(content));
  return pdf.makeIndirectObject(page);
}

// False if cancelled.
bool AddPages(QPDF& pdf, const Document& document, const Progress& progress) {
  ReportFont& font = ReportFont::OfThisThread();
  PdfGlyphs glyphs(font);
  PdfPictures pictures;
  std::vector<QPDFObjectHandle> pages;
  const int count = static_cast<int>(document.Pages.size());
  for (int page = 0; page < count; ++page) {
    if (!progress(page, count)) return false;
    PdfCanvas canvas(document.Setup.Height, glyphs, pictures);
    PaintPage(document, static_cast<std::size_t>(page), canvas);
    pages.push_back(MakePage(pdf, document, canvas.Finish()));
  }
  const QPDFObjectHandle resources = MakeResources(pdf, glyphs, pictures, font);
  QPDFPageDocumentHelper helper(pdf);
  for (QPDFObjectHandle& page : pages) {
    page.replaceKey("/Resources", resources);
    helper.addPage(page, false);
  }
  return true;
}

QPDFObjectHandle Destination(const Document& document, const ContentsEntry& entry,
                             const std::vector<QPDFObjectHandle>& pages) {
  return QPDFObjectHandle::newArray({pages.at(static_cast<std::size_t>(entry.Page)), Name("/XYZ"),
                                     QPDFObjectHandle::newInteger(0),
                                     Points(document.Setup.Height - entry.Top), QPDFObjectHandle::newNull()});
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

void AddOutline(QPDF& pdf, const Document& document) {
  if (document.Contents.empty()) return;
  const std::vector<QPDFObjectHandle> pages = pdf.getAllPages();
  QPDFObjectHandle root = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
  std::vector<QPDFObjectHandle> top;
  std::vector<QPDFObjectHandle> below;
  for (const ContentsEntry& entry : document.Contents) {
    QPDFObjectHandle item = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    item.replaceKey("/Title", Text(QString::fromStdString(entry.Text)));
    item.replaceKey("/Dest", Destination(document, entry, pages));
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
  root.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(document.Contents.size())));
  pdf.getRoot().replaceKey("/Outlines", root);
  pdf.getRoot().replaceKey("/PageMode", Name("/UseOutlines"));
}

void AddOpening(QPDF& pdf, const Document& document) {
  const std::vector<QPDFObjectHandle> pages = pdf.getAllPages();
  if (pages.empty()) return;
  pdf.getRoot().replaceKey("/OpenAction", QPDFObjectHandle::newArray(
                                              {pages.front(), Name("/FitH"), Points(document.Setup.Height)}));
  pdf.getRoot().replaceKey("/PageLabels", QPDFObjectHandle::parse("<< /Nums [ 0 << /S /D >> ] >>"));
}

QString PdfDate(const QDateTime& date) {
  return date.toUTC().toString(QStringLiteral("'D:'yyyyMMddHHmmss'Z'"));
}

void AddMetadata(QPDF& pdf, const PdfInfo& info) {
  QPDFObjectHandle data = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
  if (!info.Title.isEmpty()) data.replaceKey("/Title", Text(info.Title));
  if (!info.Author.isEmpty()) data.replaceKey("/Author", Text(info.Author));
  data.replaceKey("/Creator", Text(QStringLiteral("Tarvis")));
  if (info.Created.isValid()) {
    data.replaceKey("/CreationDate", Text(PdfDate(info.Created)));
    data.replaceKey("/ModDate", Text(PdfDate(info.Created)));
  }
  pdf.getTrailer().replaceKey("/Info", data);
}

// Unbuffered, and piece by piece: a full disk takes a part first and refuses the rest, and a buffer would
// hide that.
bool WriteAll(QSaveFile& file, const char* bytes, qint64 size) {
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return false;
  while (size > 0) {
    const qint64 written = file.write(bytes, size);
    if (written <= 0) return false;
    bytes += written;
    size -= written;
  }
  return file.commit();
}

QString WriteFile(const QString& path, const Buffer& bytes) {
  QSaveFile file(path);
  const char* data = static_cast<const char*>(static_cast<const void*>(bytes.getBuffer()));
  if (WriteAll(file, data, static_cast<qint64>(bytes.getSize()))) return {};
  return QCoreApplication::translate("PdfExport", "\"%1\" can't be written: %2")
      .arg(path, file.errorString());
}

}  // namespace

QString ExportPdf(const Document& document, const QString& path, const PdfInfo& info,
                  const Progress& progress) {
  QPDF pdf;
  pdf.emptyPDF();
  if (!AddPages(pdf, document, progress)) return {};
  AddOutline(pdf, document);
  AddOpening(pdf, document);
  AddMetadata(pdf, info);
  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.setDeterministicID(true);
  writer.setObjectStreamMode(qpdf_o_generate);
  writer.write();
  const int count = static_cast<int>(document.Pages.size());
  if (!progress(count, count)) return {};
  return WriteFile(path, *writer.getBufferSharedPointer());
}

}  // namespace tarvis
