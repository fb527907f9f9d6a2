// The thumbnails as assistive tools get them: a list with an entry for each page.
#pragma once

namespace tarvis {

// From now on all thumbnails are lists. May be called more than once.
void OfferAccessibleThumbnails();

}  // namespace tarvis
