#include "preview/jobs/printing.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <cmath>

#include "preview/jobs/print_system.h"
#include "preview/output/reading_order.h"
#include "preview/paint/painter_canvas.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

QString PrintingText(const char* text) {
  return QCoreApplication::translate("Printing", text);
}

// Right and lower edge of what the pages show, in twips.
QSizeF PrintedSize(const Document& document) {
  QSizeF size;
  for (const Item& item : document.Items) {
    size = size.expandedTo(QSizeF(item.Box.Right(), item.Box.Bottom()));
  }
  return size;
}

QSizeF PaperSize(const QPrinter& printer) {
  return printer.pageLayout().fullRect(QPageLayout::Point).size() * TwipsPerPoint;
}

double ScaleOf(const Document& document, const QPrinter& printer, PrintScale scale) {
  if (scale == PrintScale::AsComposed) return 1;
  const QSizeF paper = PaperSize(printer);
  const QSizeF page = PaperSizeOf(document);
  return std::min({1.0, paper.width() / page.width(), paper.height() / page.height()});
}

QString Drop(QPrinter& printer) {
  printer.abort();
  DropJobsOfThisThread();
  return {};
}

QString NotTakenBy(const QPrinter& printer, const QString& refusal) {
  if (refusal.isEmpty()) return {};
  return PrintingText("The printer \"%1\" did not take the document: %2").arg(printer.printerName(), refusal);
}

QString RefusalBy(const QPrinter& printer) {
  // No print system takes part in printing into a file.
  if (!printer.outputFileName().isEmpty()) return {};
  return NotTakenBy(printer, RefusalOfLastJob(printer.printerName()));
}

// The PDF that would be saved, which is made in a fraction of the time that the toolkit paints in.
QString PrintPdf(const Document& document, const PdfSheets& sheets, const QPrinter& printer,
                 const Progress& progress) {
  const std::string pdf = MakePdf(document, sheets, {printer.docName(), {}, {}}, progress);
  if (pdf.empty()) return {};
  return NotTakenBy(printer, HandOverPdf(pdf, printer));
}

}  // namespace

QSizeF MissingRoom(const Document& document, const QPrinter& printer) {
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const QMarginsF margins = layout.minimumMargins() * TwipsPerPoint;
  const QSizeF end = PaperSize(printer) - QSizeF(margins.right(), margins.bottom());
  return (PrintedSize(document) - end).expandedTo(QSizeF(0, 0));
}

PdfSheets SheetsLike(const Document& document, const QPrinter& printer, std::vector<int> pages,
                     PrintScale scale) {
  PdfSheets sheets = PdfSheets::AllOf(document);
  sheets.Pages = std::move(pages);
  // A printer's paper is measured in whole points.
  const QSizeF paper = PaperSize(printer);
  const QSizeF more = paper - sheets.Paper;
  constexpr double OnePoint = TwipsPerPoint;
  if (std::abs(more.width()) > OnePoint || std::abs(more.height()) > OnePoint) sheets.Paper = paper;
  sheets.Scale = ScaleOf(document, printer, scale);
  sheets.Greys = printer.colorMode() == QPrinter::GrayScale;
  return sheets;
}

QString PrintDocument(const Document& document, const std::vector<int>& pages, QPrinter& printer,
                      PrintScale scale, const Progress& progress) {
  TakeOverChoiceOfPages(printer);
  if (TakesPdf(printer))
    return PrintPdf(document, SheetsLike(document, printer, pages, scale), printer, progress);
  const int count = static_cast<int>(pages.size());
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return PrintingText("The printer \"%1\" can't be used.").arg(printer.printerName());
  }
  const double dotsPerInch = printer.resolution();
  const double toDevice = dotsPerInch / TwipsPerInch;
  const double shrink = ScaleOf(document, printer, scale);
  painter.scale(toDevice * shrink, toDevice * shrink);
  for (std::size_t index = 0; index < pages.size(); ++index) {
    if (!progress(static_cast<int>(index), count)) return Drop(printer);
    if (index > 0 && !printer.newPage())
      return PrintingText("The printer \"%1\" took no further page.").arg(printer.printerName());
    PainterCanvas canvas(painter, document.CodePage);
    PaintInReadingOrder(document, static_cast<std::size_t>(pages[index]), canvas);
  }
  if (!progress(count, count)) return Drop(printer);
  if (!painter.end() || printer.printerState() == QPrinter::Error) {
    return PrintingText("The printer \"%1\" reports an error.").arg(printer.printerName());
  }
  return RefusalBy(printer);
}

}  // namespace tarvis
