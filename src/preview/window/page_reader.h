// What assistive tools ask the pages for and are notified of: the text, the caret, the selection, and the
// page that is read.
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>

#include "preview/pages/page_view.h"
#include "preview/text/linear_text.h"

namespace tarvis {

class Selector;

class PageReader : public QObject {
  Q_OBJECT
 public:
  // Belongs to `view`, whose accessible interface it feeds. All must outlive it.
  PageReader(DocumentText& text, PageView& view, Selector& selector);

  LinearText& Text() { return linear_; }
  // The caret is where the selection ends, or at the head of the page that was turned to since.
  int Caret() { return linear_.OffsetOf(caret_); }
  void MoveCaret(int offset);
  TextSpan Selection();
  void Select(const TextSpan& span);

  // On the screen; without a character in it, the place of the text before it.
  QRect PlaceOf(const TextSpan& span);
  // At a place on the screen; -1 outside of the pages.
  int OffsetAt(QPoint place);
  void Show(int offset);
  // Size, weight and family of the letters at `offset`, in the form that the toolkit passes on.
  QString LookAt(int offset);

 private:
  void FollowSelection();
  void FollowPage();
  void Announce(const QString& words);

  DocumentText& text_;
  PageView& view_;
  Selector& selector_;
  LinearText linear_;
  TextPosition caret_;
  int page_ = -1;  // that was announced last
};

}  // namespace tarvis
