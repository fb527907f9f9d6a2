// What the texts of a page say and where their characters stand, be they of reports or inside pictures. A
// piece of text is told as the reading order has it; places are in twips from the top left corner of the
// paper.
#pragma once

#include <QPointF>
#include <QRectF>
#include <string_view>

#include "preview/paint/document_text.h"

namespace tarvis {

// UTF-8; lives as long as the document.
std::string_view TextOf(const Document& document, const ReadPiece& piece);

// The box of the whole line.
QRectF BoxOfLine(const Document& document, const ReadPiece& piece);

// The box of characters `first` to before `end`.
QRectF BoxOfCharacters(const Document& document, const ReadPiece& piece, std::size_t first, std::size_t end);

// The number of characters that stand before `point` along the line, to the nearer edge.
std::size_t CharacterAt(const Document& document, const ReadPiece& piece, QPointF point);

std::size_t CharacterCount(const Document& document, const ReadPiece& piece);

}  // namespace tarvis
