#include "preview/printing.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "preview/painter_canvas.h"

namespace tarvis {
namespace {

QString Text(const char* text) {
  return QCoreApplication::translate("Printing", text);
}

// Right edge of what the pages show, in twips.
double PrintedRight(const Document& document) {
  float right = 0;
  for (const Item& item : document.Items) right = std::max(right, item.Box.Right());
  return static_cast<double>(right);
}

// Pages in the order in which they leave the printer; copies that the printer can't make itself are repeated
// here.
std::vector<int> PageOrder(const QPrinter& printer, int pageCount) {
  const int first = printer.fromPage() > 0 ? printer.fromPage() - 1 : 0;
  const int last = printer.toPage() > 0 ? std::min(printer.toPage(), pageCount) - 1 : pageCount - 1;
  std::vector<int> pages;
  for (int page = first; page <= last; ++page) pages.push_back(page);
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(pages.begin(), pages.end());
  const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
  std::vector<int> order;
  if (printer.collateCopies()) {
    for (int copy = 0; copy < copies; ++copy) order.insert(order.end(), pages.begin(), pages.end());
  } else {
    for (const int page : pages) order.insert(order.end(), static_cast<std::size_t>(copies), page);
  }
  return order;
}

// The print system takes a document without a word and drops it if its queue has gone meanwhile.
bool HasGone(const QPrinter& printer) {
  return printer.outputFileName().isEmpty() && QPrinterInfo::printerInfo(printer.printerName()).isNull();
}

}  // namespace

double MissingWidth(const Document& document, const QPrinter& printer) {
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const double end = layout.fullRect().width() - layout.minimumMargins().right();
  return std::max(0.0, PrintedRight(document) - end * static_cast<double>(TwipsPerPoint));
}

QString PrintDocument(const Document& document, QPrinter& printer, PrintScale scale,
                      const Progress& progress) {
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return Text("The printer \"%1\" can't be used.").arg(printer.printerName());
  }
  const double toDevice = printer.resolution() / static_cast<double>(TwipsPerInch);
  const double paper =
      printer.pageLayout().fullRect(QPageLayout::Point).width() * static_cast<double>(TwipsPerPoint);
  const double shrink = scale == PrintScale::FitToPaper
                            ? std::min(1.0, paper / static_cast<double>(document.Setup.Width))
                            : 1.0;
  painter.scale(toDevice * shrink, toDevice * shrink);
  const std::vector<int> order = PageOrder(printer, static_cast<int>(document.Pages.size()));
  for (std::size_t index = 0; index < order.size(); ++index) {
    if (!progress(static_cast<int>(index), static_cast<int>(order.size()))) {
      printer.abort();
      return {};
    }
    if (index > 0 && !printer.newPage())
      return Text("The printer \"%1\" took no further page.").arg(printer.printerName());
    PainterCanvas canvas(painter);
    PaintPage(document, static_cast<std::size_t>(order[index]), canvas);
  }
  if (!painter.end() || printer.printerState() == QPrinter::Error) {
    return Text("The printer \"%1\" reports an error.").arg(printer.printerName());
  }
  if (HasGone(printer)) return Text("The printer \"%1\" is no longer there.").arg(printer.printerName());
  return {};
}

}  // namespace tarvis
