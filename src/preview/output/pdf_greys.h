// Turns the colours of a PDF into greys.
#pragma once

#include <qpdf/QPDF.hh>
#include <set>

namespace tarvis {

// The usual weights of red, green and blue in the brightness of a colour; each is a part of 1.
[[nodiscard]] constexpr double GreyOf(double red, double green, double blue) {
  return 0.299 * red + 0.587 * green + 0.114 * blue;
}

// Forms, pictures, patterns and gradients; all of them are expected in red, green and blue, as the toolkit's
// PDF painter writes them. What is known to be grey is left as it is: to read and compress a content again
// takes several times as long as to write it.
void TurnIntoGreys(QPDF& pdf, const std::set<QPDFObjGen>& greyForms);

}  // namespace tarvis
