// Turns the colours of a PDF into greys.
#pragma once

#include <qpdf/QPDF.hh>

namespace tarvis {

// Pages, forms, pictures and gradients; all of them are expected in red, green and blue, as our own content
// and the toolkit's PDF painter write them.
void TurnIntoGreys(QPDF& pdf);

}  // namespace tarvis
