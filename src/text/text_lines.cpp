#include "text/text_lines.h"

#include "text/run_time_failure.h"

namespace tarvis {

void TextLines::Reset(std::string text) {
  text_ = std::move(text);
  pieces_.clear();
  loaded_ = true;
}

void TextLines::AddLine(std::string_view line) {
  AddPiece(text_.size(), line.size());
  text_ += line;
}

void TextLines::Clear() {
  text_.clear();
  pieces_.clear();
  loaded_ = false;
}

std::string_view TextLines::operator[](int index) const {
  if (index < 0 || index > HighestIndex()) {
    throw RunTimeFailure("subscript out of range",
                         {.File = {}, .Line = 0, .Key = "Lines", .Text = std::to_string(index)});
  }
  const auto position = static_cast<std::size_t>(index);
  if (position == pieces_.size()) return {};
  return std::string_view(text_).substr(pieces_[position].Start, pieces_[position].Length);
}

}  // namespace tarvis
