#include "preview/output/tagged_canvas.h"

#include <string>

namespace tarvis {
namespace {

const char* TypeOf(PartRole role) {
  switch (role) {
    case PartRole::ColumnHeader:
    case PartRole::RowHeader:
      return "/TH";
    case PartRole::Cell:
      return "/TD";
    case PartRole::Picture:
      return "/Figure";
    case PartRole::Tick:
      return "/Span";
    default:
      return "/P";
  }
}

bool ShowTheSame(const Item* a, const Item* b) {
  return a != nullptr && b != nullptr && a->Band == b->Band && a->Control == b->Control;
}

}  // namespace

// A tick is painted with fills and lines, which belong to it.
void TaggedCanvas::OnPaths() {
  if (open_ == nullptr) Add(PlainDecoration);
}

void TaggedCanvas::OnEndOfPaths() {
  if (open_ == nullptr) Add(EndOfMarkedContent);
}

// Marked content must not begin outside a text object and end inside. So that of a text is opened and closed
// within one, as late as that is possible, and that of all else outside.
void TaggedCanvas::BeginItem(const Item& item) {
  item_ = &item;
  if (item.Kind == ItemKind::Text) return;
  EndPart();
  Open(item);
}

void TaggedCanvas::EndItem() {
  if (item_->Kind != ItemKind::Text) {
    EndPart();
    Close();
  }
  item_ = nullptr;
}

// The lines of a cell that follow one another are one piece.
void TaggedCanvas::OnText() {
  if (ShowTheSame(open_, item_)) {
    open_ = item_;
    return;
  }
  Close();
  Open(*item_);
}

void TaggedCanvas::Open(const Item& item) {
  open_ = &item;
  const BandPart* const part = plan_.PartOf(item);
  isRead_ = part != nullptr;
  if (!isRead_) return Add(plan_.DecorationMark(item));
  Add(TypeOf(part->Role) + ("<</MCID " + std::to_string(marks_.size())) + ">>BDC\n");
  marks_.push_back({item.Band, item.Control, item.Ticked, item.Box});
}

void TaggedCanvas::Close() {
  if (open_ == nullptr) return;
  Add(EndOfMarkedContent);
  open_ = nullptr;
}

}  // namespace tarvis
