// A graph of a document in the forms in which other programs take it, as large as on its page.
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <string>

#include "report/engine/document.h"

namespace tarvis {

// A graph, or any other picture, where a page shows it; all parts live as long as the document.
struct PlacedGraph {
  int Page = 0;
  const Item* Place = nullptr;  // an item of kind Picture whose picture is there
};

// That of the part of the document that it belongs to.
[[nodiscard]] QString GraphTitle(const Document& document, const PlacedGraph& graph);

// Vectors, with letters as outlines. `title` is for readers who can't see it.
[[nodiscard]] std::string GraphAsSvg(const Document& document, const PlacedGraph& graph,
                                     const QString& title);

// Vectors, with letters as text: one page of the graph's size.
[[nodiscard]] std::string GraphAsPdf(const Document& document, const PlacedGraph& graph,
                                     const QString& title);

// Pixels, 300 to the inch: as fine as printed pages need them.
[[nodiscard]] QImage GraphAsImage(const Document& document, const PlacedGraph& graph);
[[nodiscard]] std::string GraphAsPng(const Document& document, const PlacedGraph& graph);

// A part of a page, `area` in twips, as fine as that.
[[nodiscard]] QImage AreaAsImage(const Document& document, int page, const QRectF& area);

}  // namespace tarvis
