// The list of all places where a text was found: page and row of each. Where the row has no room, its ends
// are cut, not what was found.
#pragma once

#include <QListView>

#include "preview/text/text_search.h"

namespace tarvis {

class HitModel;
class QuietMark;

class HitList : public QListView {
  Q_OBJECT
 public:
  // `text` must outlive it.
  explicit HitList(DocumentText& text, QWidget* parent = nullptr);

  void ShowHits(SearchHits hits);
  // Marks one of them.
  void ShowCurrent(int hit);

 signals:
  void HitChosen(int hit);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  HitModel* model_;
  QuietMark* mark_;
};

}  // namespace tarvis
