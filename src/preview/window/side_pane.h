// The pane beside the pages: contents in two levels, thumbnails, and places that were found.
#pragma once

#include <QTabWidget>
#include <memory>

#include "preview/pages/page_layout.h"
#include "preview/paint/document_text.h"
#include "report/engine/document.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace tarvis {

class HitList;
class QuietMark;
class Thumbnails;

class SidePane : public QTabWidget {
  Q_OBJECT
 public:
  // `text` must outlive it.
  SidePane(std::shared_ptr<const Document> document, DocumentText& text, QWidget* parent = nullptr);

  // Marks what is being read.
  void ShowPlace(const PagePlace& place);
  // Shows the tab "Found" in front, or takes it away and shows the tab that was in front before.
  void ShowFound(bool shown);
  HitList& Found() { return *found_; }
  // The tab that is in front without that of "Found".
  int UsualTab() const;

 signals:
  void PlaceChosen(const PagePlace& place);

 private:
  void FillContents();
  void Choose(const QTreeWidgetItem* item);

  std::shared_ptr<const Document> document_;
  QTreeWidget* contents_;
  QuietMark* mark_;
  Thumbnails* thumbnails_;
  HitList* found_;
  int before_ = 0;                       // the tab that was in front before that of "Found"
  std::vector<QTreeWidgetItem*> items_;  // by entry
};

}  // namespace tarvis
