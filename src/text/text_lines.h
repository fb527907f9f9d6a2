// The lines of the file loaded last: one text, cut into views, so that no line costs an allocation.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarvis {

// Indices run from 0 to HighestIndex(); the last one is a spare that is always empty. Before the first load
// there is no element at all. A view lasts until the next load.
class TextLines {
 public:
  // Starts over with lines that will be cut out of `text`.
  void Reset(std::string text);
  // The next line is this piece of the text.
  void AddPiece(std::size_t start, std::size_t length) { pieces_.push_back({start, length}); }
  // The next line is not in the text: it is appended to it.
  void AddLine(std::string_view line);
  // Drops everything, the spare too.
  void Clear();

  // The text given to Reset, and the lines appended since.
  std::string_view Text() const { return text_; }

  int HighestIndex() const { return static_cast<int>(pieces_.size()) - (loaded_ ? 0 : 1); }
  // An index outside throws RunTimeFailure.
  std::string_view operator[](int index) const;

 private:
  struct Piece {
    std::size_t Start;
    std::size_t Length;
  };

  std::string text_;
  std::vector<Piece> pieces_;
  bool loaded_ = false;
};

}  // namespace tarvis
