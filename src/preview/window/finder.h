// Finding in the preview: ties the find bar to the document's text and the page view.
#pragma once

#include <QObject>
#include <memory>

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
  // Others take their place at the next search; these stay as they are.
  const SearchHits& Hits() const { return hits_; }
  // Shows a hit by its number, counted from 0, also if it was shown last.
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
  bool IsInSight(const SearchHit& hit) const;

  FindBar& bar_;
  DocumentText& text_;
  PageView& view_;
  SearchHits hits_ = std::make_shared<std::vector<SearchHit>>();
  int current_ = -1;
};

}  // namespace tarvis
