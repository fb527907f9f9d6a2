// The pages as assistive tools get them: a document whose text they can read by lines, cells, words and
// characters.
#pragma once

namespace tarvis {

// From now on every page view that has a PageReader offers its text. May be called more than once.
void OfferAccessiblePages();

}  // namespace tarvis
