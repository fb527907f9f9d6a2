// The text of a document in reading order, for copying, searching and the order of text in a PDF.
//
// A band is read row by row, a row cell by cell from the left; a cell is all that one control printed in one
// band.
#pragma once

#include <cstdint>
#include <vector>

#include "report/engine/document.h"

namespace tarvis {

// How a piece of text follows the one before it.
enum class Join : std::uint8_t {
  Line,   // starts a new line (also the first piece of a page)
  Cell,   // next cell of the same row
  Wrap,   // next line of the same cell, which has other cells beside it
  Break,  // next line of a cell that is alone in its row
};

struct ReadPiece {
  std::uint32_t Item = 0;  // index of Document::Items: a text, a tick, or a picture with texts
  std::uint16_t EmptyCells =
      0;  // cells without text between the piece before and this one, or before it in its row
  Join Before = Join::Line;
  // Index of the texts of the picture that the item is; below 0 if the item is a text itself.
  std::int32_t PictureText = -1;
};

struct PageText {
  std::vector<ReadPiece> Pieces;
};

[[nodiscard]] PageText ReadPage(const Document& document, std::size_t page);

// The text of all pages, each read on first use.
class DocumentText {
 public:
  // `document` must outlive it.
  explicit DocumentText(const Document& document) : document_(document), pages_(document.Pages.size()) {}

  const Document& Source() const { return document_; }
  const PageText& Page(int page);

 private:
  struct Entry {
    bool Known = false;
    PageText Text;
  };

  const Document& document_;
  std::vector<Entry> pages_;
};

}  // namespace tarvis
