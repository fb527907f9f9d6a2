// The pane beside the pages: contents in two levels, and thumbnails.
#pragma once

#include <QTabWidget>
#include <memory>

#include "preview/pages/page_layout.h"
#include "report/engine/document.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace tarvis {

class QuietMark;
class Thumbnails;

class SidePane : public QTabWidget {
  Q_OBJECT
 public:
  explicit SidePane(std::shared_ptr<const Document> document, QWidget* parent = nullptr);

  // Marks what is being read.
  void ShowPlace(const PagePlace& place);

 signals:
  void PlaceChosen(const PagePlace& place);

 private:
  void FillContents();
  void Choose(const QTreeWidgetItem* item);

  std::shared_ptr<const Document> document_;
  QTreeWidget* contents_;
  QuietMark* mark_;
  Thumbnails* thumbnails_;
  std::vector<QTreeWidgetItem*> items_;  // by entry
};

}  // namespace tarvis
