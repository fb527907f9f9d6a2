// What is copied from the pages: selected text, a column, a marked area, a graph.
#pragma once

#include <QObject>
#include <optional>

#include "preview/output/graph_forms.h"
#include "preview/pages/page_view.h"

namespace tarvis {

class AreaMarker;
class DocumentOutput;
class Selector;

class Copier : public QObject {
  Q_OBJECT
 public:
  // All must outlive it. Only one of text and area is selected at a time.
  Copier(const Document& document, PageView& view, Selector& selector, AreaMarker& marker,
         DocumentOutput& output, QObject* parent);

  // Whether something is selected or marked.
  bool CanCopy() const;
  // A marked area as a picture, selected text as text; does nothing without any.
  void Copy() const;
  void CopyGraph() const;
  void SaveGraph() const;
  // Shows the marked area as large as the view allows.
  void ZoomToArea();

  // What a context menu was opened on: commands are about that as long as it is open.
  void PointAt(const std::optional<PageView::Spot>& spot) { pointedAt_ = spot; }
  // The graph at that place, or else the one of which the most is in sight.
  std::optional<PlacedGraph> Graph() const;
  // The column at that place, or else where text was selected last.
  void SelectColumn();

  // The marks of a page.
  std::vector<Highlight> Marks(int page) const;

 signals:
  void Changed();
  // The view is about to leave its place.
  void Leaving();

 private:
  const Document& document_;
  PageView& view_;
  Selector& selector_;
  AreaMarker& marker_;
  DocumentOutput& output_;
  std::optional<PageView::Spot> pointedAt_;
};

}  // namespace tarvis
