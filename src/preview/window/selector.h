// Selecting text on the pages by mouse, and copying it: ties the page view's input to what is selected, which
// is a stretch of text or a column of a table.
#pragma once

#include <QObject>
#include <utility>

#include "preview/pages/page_input.h"
#include "preview/text/column_selection.h"
#include "preview/text/text_selection.h"

namespace tarvis {

class Selector : public QObject {
  Q_OBJECT
 public:
  // All must outlive it.
  Selector(DocumentText& text, PageView& view, PageInput& input, QObject* parent);

  bool IsEmpty() const { return selection_.IsEmpty() && column_.IsEmpty(); }
  void Clear();
  void SelectAll();
  // A stretch of text; where it begins and where it ends may be in any order.
  void Select(const TextPosition& from, const TextPosition& to);
  std::pair<TextPosition, TextPosition> Ends() const { return {selection_.Anchor(), selection_.End()}; }
  // The column of the cell at `spot`.
  void SelectColumn(const PageView::Spot& spot);
  // The column of the cell that was pointed at last; if text was selected since by other means, of the cell
  // where it ends.
  void SelectColumn();
  // Puts the selected text on the clipboard; does nothing without a selection.
  void Copy() const;
  // The marks of a page.
  std::vector<Highlight> Marks(int page) const;

 signals:
  void Changed();

 private:
  void Start(const PageView::Spot& spot);
  void Extend(const PageView::Spot& spot);
  void SelectWord(const PageView::Spot& spot);
  void SelectRow(const PageView::Spot& spot);
  void NoticeChange();

  PageView& view_;
  TextSelection selection_;
  ColumnSelection column_;
  PageView::Spot pointedAt_;  // where the mouse or a finger selected last; no page after selecting otherwise
};

}  // namespace tarvis
