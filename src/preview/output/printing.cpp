#include "preview/output/printing.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPageRanges>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "preview/output/print_system.h"
#include "preview/paint/painter_canvas.h"

namespace tarvis {
namespace {

QString Text(const char* text) {
  return QCoreApplication::translate("Printing", text);
}

// Right and lower edge of what the pages show, in twips.
QSizeF PrintedSize(const Document& document) {
  QSizeF size;
  for (const Item& item : document.Items) {
    size = size.expandedTo(
        QSizeF(static_cast<double>(item.Box.Right()), static_cast<double>(item.Box.Bottom())));
  }
  return size;
}

QSizeF PaperSize(const QPrinter& printer) {
  return printer.pageLayout().fullRect(QPageLayout::Point).size() * static_cast<double>(TwipsPerPoint);
}

double ScaleToFit(const Document& document, const QPrinter& printer) {
  const QSizeF paper = PaperSize(printer);
  return std::min({1.0, paper.width() / static_cast<double>(document.Setup.Width),
                   paper.height() / static_cast<double>(document.Setup.Height)});
}

QString Drop(QPrinter& printer) {
  printer.abort();
  DropJobsOfThisThread();
  return {};
}

QString RefusalBy(const QPrinter& printer) {
  // Printing into a file asks no print system.
  const QString refusal = printer.outputFileName().isEmpty() ? RefusalOfLastJob() : QString();
  if (refusal.isEmpty()) return {};
  return Text("The printer \"%1\" did not take the document: %2").arg(printer.printerName(), refusal);
}

bool IsIn(PageSet set, int count) {
  return set == PageSet::All || (set == PageSet::Odd) == (count % 2 != 0);
}

std::vector<int> ChosenPages(const QPrinter& printer, PageSet set, int pageCount) {
  QList<QPageRanges::Range> ranges = printer.pageRanges().toRangeList();
  if (ranges.isEmpty()) ranges.append({1, pageCount});
  const int first = ranges.first().from;
  std::vector<int> pages;
  for (const QPageRanges::Range& range : ranges) {
    for (int number = range.from; number <= std::min(range.to, pageCount); ++number)
      if (IsIn(set, number - first + 1)) pages.push_back(number - 1);
  }
  return pages;
}

// Pages in the order in which they leave the printer; copies that the printer can't make itself are repeated
// here.
std::vector<int> PageOrder(const QPrinter& printer, PageSet set, int pageCount) {
  std::vector<int> pages = ChosenPages(printer, set, pageCount);
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

}  // namespace

QSizeF MissingRoom(const Document& document, const QPrinter& printer) {
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const QMarginsF margins = layout.minimumMargins() * static_cast<double>(TwipsPerPoint);
  const QSizeF end = PaperSize(printer) - QSizeF(margins.right(), margins.bottom());
  return (PrintedSize(document) - end).expandedTo(QSizeF(0, 0));
}

QString PrintDocument(const Document& document, QPrinter& printer, PrintScale scale,
                      const Progress& progress) {
  const PageSet set = TakeChoiceOfPages(printer);
  const std::vector<int> order = PageOrder(printer, set, static_cast<int>(document.Pages.size()));
  if (order.empty()) return Text("The document has none of the chosen pages.");
  const int count = static_cast<int>(order.size());
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return Text("The printer \"%1\" can't be used.").arg(printer.printerName());
  }
  const double toDevice = printer.resolution() / static_cast<double>(TwipsPerInch);
  const double shrink = scale == PrintScale::FitToPaper ? ScaleToFit(document, printer) : 1.0;
  painter.scale(toDevice * shrink, toDevice * shrink);
  for (std::size_t index = 0; index < order.size(); ++index) {
    if (!progress(static_cast<int>(index), count)) return Drop(printer);
    if (index > 0 && !printer.newPage())
      return Text("The printer \"%1\" took no further page.").arg(printer.printerName());
    PainterCanvas canvas(painter);
    PaintPage(document, static_cast<std::size_t>(order[index]), canvas);
  }
  if (!progress(count, count)) return Drop(printer);
  if (!painter.end() || printer.printerState() == QPrinter::Error) {
    return Text("The printer \"%1\" reports an error.").arg(printer.printerName());
  }
  return RefusalBy(printer);
}

}  // namespace tarvis
