#include "preview/window/copier.h"

#include <QClipboard>
#include <QGuiApplication>

#include "preview/pages/area_marker.h"
#include "preview/pages/page_steps.h"
#include "preview/window/clipboard_forms.h"
#include "preview/window/document_output.h"
#include "preview/window/graph_finder.h"
#include "preview/window/selector.h"

namespace tarvis {
namespace {

const QColor AreaTint(205, 220, 245);

}  // namespace

Copier::Copier(const Document& document, PageView& view, Selector& selector, AreaMarker& marker,
               DocumentOutput& output, QObject* parent)
    : QObject(parent),
      document_(document),
      view_(view),
      selector_(selector),
      marker_(marker),
      output_(output) {
  connect(&marker, &AreaMarker::Changed, this, [this] {
    if (marker_.Area()) selector_.Clear();
    view_.viewport()->update();
    emit Changed();
  });
  connect(&selector, &Selector::Changed, this, [this] {
    if (!selector_.IsEmpty()) marker_.Clear();
    emit Changed();
  });
}

bool Copier::CanCopy() const {
  return marker_.Area() || !selector_.IsEmpty();
}

void Copier::Copy() const {
  const std::optional<PageArea>& area = marker_.Area();
  if (!area) return selector_.Copy();
  QGuiApplication::clipboard()->setImage(AreaAsImage(document_, area->Page, area->Box));
}

void Copier::CopyGraph() const {
  if (const std::optional<PlacedGraph> graph = Graph()) tarvis::CopyGraph(document_, *graph);
}

void Copier::SaveGraph() const {
  if (const std::optional<PlacedGraph> graph = Graph()) output_.SaveGraph(*graph);
}

void Copier::ZoomToArea() {
  if (!marker_.Area()) return;
  emit Leaving();
  ZoomTo(view_, marker_.Area()->Page, marker_.Area()->Box);
}

std::optional<PlacedGraph> Copier::Graph() const {
  std::optional<PlacedGraph> graph;
  if (pointedAt_) graph = GraphAt(document_, *pointedAt_);
  return graph ? graph : GraphInSight(document_, view_);
}

void Copier::SelectColumn() {
  if (pointedAt_) {
    selector_.SelectColumn(*pointedAt_);
  } else {
    selector_.SelectColumn();
  }
}

std::vector<Highlight> Copier::Marks(int page) const {
  std::vector<Highlight> marks = selector_.Marks(page);
  const std::optional<PageArea>& area = marker_.Area();
  if (area && area->Page == page) marks.push_back({area->Box, AreaTint});
  return marks;
}

}  // namespace tarvis
