// Page content of which each piece says what it belongs to: marked content with numbers, or decoration.
#pragma once

#include <cstdint>
#include <vector>

#include "preview/output/pdf_canvas.h"
#include "preview/output/pdf_tag_plan.h"

namespace tarvis {

// A piece of marked content; its number is its place among those of its page.
struct PdfMark {
  std::uint32_t Band = 0;
  std::uint16_t Control = 0;
  bool IsTicked = false;  // of a tick
  Rect Box;               // of a picture or a tick
};

class TaggedCanvas : public PdfCanvas {
 public:
  // `plan` must outlive the canvas; the others as in PdfCanvas.
  TaggedCanvas(const PdfLook& look, PdfGlyphs& glyphs, PdfPictures& pictures, const PdfTagPlan& plan)
      : PdfCanvas(look, glyphs, pictures), plan_(plan) {}

  void BeginItem(const Item& item) override;
  void EndItem() override;

  // To be called after `Finish`.
  std::vector<PdfMark> TakeMarks() { return std::move(marks_); }

 protected:
  void OnText() override;
  void OnEndOfText() override { Close(); }
  void OnPaths() override;
  void OnEndOfPaths() override;
  bool ReadsText() const override { return isRead_; }
  bool NamesPrivateCharacters() const override { return true; }

 private:
  void Open(const Item& item);
  void Close();

  const PdfTagPlan& plan_;
  std::vector<PdfMark> marks_;
  const Item* item_ = nullptr;  // that is being painted
  const Item* open_ = nullptr;  // that the open marked content shows
  bool isRead_ = false;         // the open one is no decoration
};

}  // namespace tarvis
