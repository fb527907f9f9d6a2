#include "preview/window/clipboard_forms.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>
#include <utility>

namespace tarvis {
namespace {

// The clipboard takes it over.
void Put(std::unique_ptr<QMimeData> data) {
  QGuiApplication::clipboard()->setMimeData(data.release());
}

}  // namespace

void CopyTable(const CopiedRows& rows) {
  auto data = std::make_unique<QMimeData>();
  data->setText(ToPlainText(rows));
  data->setHtml(ToHtml(rows));
  Put(std::move(data));
}

void CopyColumn(const CopiedRows& rows) {
  auto data = std::make_unique<QMimeData>();
  data->setText(ToPlainText(rows));
  Put(std::move(data));
}

void CopyGraph(const Document& document, const PlacedGraph& graph) {
  const QString title = GraphTitle(document, graph);
  auto data = std::make_unique<QMimeData>();
  data->setData(QStringLiteral("image/svg+xml"),
                QByteArray::fromStdString(GraphAsSvg(document, graph, title)));
  data->setData(QStringLiteral("application/pdf"),
                QByteArray::fromStdString(GraphAsPdf(document, graph, title)));
  data->setImageData(GraphAsImage(document, graph));
  Put(std::move(data));
}

}  // namespace tarvis
