// All text of a document as one string, as assistive tools read it: LF between lines, tabs between cells, one
// page after the other. Offsets count UTF-16 units.
#pragma once

#include <QString>
#include <vector>

#include "preview/paint/document_text.h"
#include "preview/text/text_selection.h"

namespace tarvis {

enum class TextUnit { Character, Word, Cell, Line, All };

// From `Start` to before `End`.
struct TextSpan {
  int Start = 0;
  int End = 0;
  bool operator==(const TextSpan&) const = default;
};

class LinearText {
 public:
  // `text` must outlive it. All pages are read when the text is asked for first.
  explicit LinearText(DocumentText& text) : source_(text) {}

  const QString& Text();
  int OffsetOf(const TextPosition& position);
  TextPosition PositionOf(int offset);
  // The unit that contains the place after `offset`. A line includes its LF.
  TextSpan UnitAt(int offset, TextUnit unit);
  // The same as UnitAt for the units before and after that one; empty at the ends.
  TextSpan UnitBefore(int offset, TextUnit unit);
  TextSpan UnitAfter(int offset, TextUnit unit);

  // The piece of text at an offset, or the one before it where a separator is; null without any text.
  struct Piece {
    int Page = 0;
    std::size_t Index = 0;  // of the page's pieces
    int Start = 0;
    int Length = 0;
  };
  const Piece* PieceAt(int offset);

 private:
  void Read();
  TextSpan Between(int offset, const QString& ends) const;
  TextSpan InLine(int offset, TextUnit unit) const;

  DocumentText& source_;
  bool isRead_ = false;
  QString text_;
  std::vector<Piece> pieces_;
};

}  // namespace tarvis
