#include "preview/output/graph_forms.h"

#include <QBuffer>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "pictures/paintable_picture.h"
#include "preview/output/pdf_export.h"
#include "preview/output/svg_device.h"
#include "preview/paint/painter_canvas.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

constexpr double FineDotsPerInch = 300;
constexpr double InchesPerMetre = 1 / 0.0254;
constexpr double MostPixels = 40e6;

const PicturePtr& PictureOf(const Document& document, const PlacedGraph& graph) {
  return document.Pictures[graph.Place->Source];
}

void Paint(const Picture& picture, QPainter& painter, QSizeF size) {
  const auto* paintable = dynamic_cast<const PaintablePicture*>(&picture);
  if (paintable != nullptr) paintable->Paint(painter, QRectF({}, size));
}

QString WordsOf(const Picture& picture) {
  QStringList lines;
  for (const PictureText& text : picture.Texts()) lines.append(QString::fromStdString(text.Text));
  return lines.join(QLatin1Char('\n'));
}

// White paper of that size (twips), with a painter that paints in twips.
struct Sheet {
  QImage Image;
  QPainter Painter;

  explicit Sheet(QSizeF size) {
    double scale = FineDotsPerInch / TwipsPerInch;
    scale = std::min(scale, std::sqrt(MostPixels / std::max(1.0, size.width() * size.height())));
    Image = QImage(std::max(1, NearestPixel(size.width() * scale)),
                   std::max(1, NearestPixel(size.height() * scale)), QImage::Format_RGB32);
    Image.fill(Qt::white);
    const int dots = NearestPixel(scale * TwipsPerInch * InchesPerMetre);
    Image.setDotsPerMeterX(dots);
    Image.setDotsPerMeterY(dots);
    Painter.begin(&Image);
    Painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    Painter.scale(scale, scale);
  }
  QImage Finish() {
    Painter.end();
    return Image;
  }
};

}  // namespace

QString GraphTitle(const Document& document, const PlacedGraph& graph) {
  std::string title = document.Title;
  for (const ContentsEntry& entry : document.Contents) {
    const bool isAbove =
        entry.Page < graph.Page || (entry.Page == graph.Page && entry.Top <= graph.Place->Box.Top);
    if (isAbove) title = entry.Text;
  }
  return QString::fromStdString(title).trimmed();
}

std::string GraphAsSvg(const Document& document, const PlacedGraph& graph, const QString& title) {
  const Picture& picture = *PictureOf(document, graph);
  const QSizeF size = ToRectF(graph.Place->Box).size();
  SvgDevice device(size);
  QPainter painter(&device);
  Paint(picture, painter, size);
  painter.end();
  return device.File(title, WordsOf(picture));
}

std::string GraphAsPdf(const Document& document, const PlacedGraph& graph, const QString& title) {
  Document page;
  page.CodePage = document.CodePage;
  page.Setup.Width = graph.Place->Box.Width;
  page.Setup.Height = graph.Place->Box.Height;
  page.Pages.push_back({0, 1});
  page.Pictures.push_back(PictureOf(document, graph));
  Item item;
  item.Kind = ItemKind::Picture;
  item.Box = {0, 0, page.Setup.Width, page.Setup.Height};
  page.Items.push_back(item);
  return MakePdf(page, PdfSheets::AllOf(page), {.Title = title, .Author = {}, .Created = {}},
                 [](int, int) { return true; });
}

QImage GraphAsImage(const Document& document, const PlacedGraph& graph) {
  const QSizeF size = ToRectF(graph.Place->Box).size();
  Sheet sheet(size);
  Paint(*PictureOf(document, graph), sheet.Painter, size);
  return sheet.Finish();
}

std::string GraphAsPng(const Document& document, const PlacedGraph& graph) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  GraphAsImage(document, graph).save(&buffer, "PNG");
  return buffer.data().toStdString();
}

QImage AreaAsImage(const Document& document, int page, const QRectF& area) {
  Sheet sheet(area.size());
  sheet.Painter.translate(-area.topLeft());
  PixelCanvas canvas(sheet.Painter, document.CodePage);
  PaintPage(document, static_cast<std::size_t>(page), canvas);
  return sheet.Finish();
}

}  // namespace tarvis
