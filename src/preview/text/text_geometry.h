// The texts of a page and the places of their characters, both of reports and inside pictures. A piece of
// text is one of the reading order; places are in twips from the top left corner of the paper.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <string_view>
#include <vector>

#include "preview/paint/document_text.h"

namespace tarvis {

// UTF-8; lives as long as the document.
std::string_view TextOf(const Document& document, const ReadPiece& piece);
// The same as a string of the toolkit.
QString StringOf(const Document& document, const ReadPiece& piece);

// The number of UTF-16 units that the first `count` characters of `text` take; those of all if it has fewer.
qsizetype UnitsOf(const QString& text, std::size_t count);

// Whether a character is part of a word, both for selecting words and for finding whole ones.
bool IsWordCharacter(char32_t character);

// The box of the whole line.
QRectF BoxOfLine(const Document& document, const ReadPiece& piece);

// The boxes of characters `first` to before `end`: several where the line runs in both directions.
std::vector<QRectF> BoxesOfCharacters(const Document& document, const ReadPiece& piece, std::size_t first,
                                      std::size_t end);

// The number of characters that come before `point` in the text, counted to the nearer edge.
std::size_t CharacterAt(const Document& document, const ReadPiece& piece, QPointF point);

std::size_t CharacterCount(const Document& document, const ReadPiece& piece);

}  // namespace tarvis
