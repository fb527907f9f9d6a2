// Where the characters of printed text stand.
#pragma once

#include <QRectF>
#include <cstdint>

#include "report/engine/document.h"

namespace tarvis {

// The rectangle (twips) of characters `first` to before `end` of a text item, told by its index.
QRectF BoxOfCharacters(const Document& document, std::uint32_t item, std::size_t first, std::size_t end);

// The number of characters of a text item that stand left of `x` (twips), to the nearer edge.
std::size_t CharacterAt(const Document& document, std::uint32_t item, double x);

std::size_t CharacterCount(const Document& document, std::uint32_t item);

}  // namespace tarvis
