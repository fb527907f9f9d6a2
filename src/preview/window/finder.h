// Finding in the preview: ties the find bar to the document's text and the page view.
#pragma once

#include <QObject>

#include "preview/pages/page_view.h"
#include "preview/text/text_search.h"

namespace tarvis {

class FindBar;

class Finder : public QObject {
  Q_OBJECT
 public:
  // All must outlive it.
  Finder(FindBar& bar, DocumentText& text, PageView& view, QObject* parent);

  void Open();
  void Close();
  // Goes to the next hit, after the last one to the first. With no text yet, opens the bar.
  void Step(int direction);
  // The marks of a page; the current hit has a colour of its own.
  std::vector<Highlight> Marks(int page) const;
  const std::vector<SearchHit>& Hits() const { return hits_; }
  // Shows a hit by its number, counted from 0.
  void GoTo(int hit);

 signals:
  // A hit far away is about to be shown.
  void Leaving();
  // Other hits, or none any more.
  void HitsChanged();
  void CurrentChanged(int hit);

 private:
  void SearchAgain();
  void ShowCurrent();

  FindBar& bar_;
  DocumentText& text_;
  PageView& view_;
  std::vector<SearchHit> hits_;
  int current_ = -1;
};

}  // namespace tarvis
