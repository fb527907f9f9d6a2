// Cutting a band that is taller than a page, and the pictures in it that are.
#pragma once

#include "report/engine/band.h"

namespace tarvis {

// Whether a line of text, a picture or a tick of `band` stays whole in its first `room` twips.
bool HasWholeAbove(const Band& band, float room);

// The part of `band` within its first `room` twips; `band` keeps the rest. Lines of text, pictures
// and ticks stay whole: each that ends within `room` is in the first part, whatever is next to it, and the
// rest begins at the highest of the others, so that below the cut all keep their places to each other. Frames
// that cross the cut are open there. The height of the first part is 0 if nothing can be cut off.
Band CutBand(Band& band, float room);

// Makes a picture that crosses `room` smaller, to what is left of `room`, with all that lies on it; what
// is below it moves up. Pictures that rather move to the next page, where `freshRoom` twips are, stay as
// they are: those that fit there and have another picture above them, and those that would lose more than
// half their height. The picture at the head of a fresh page shrinks as far as it must.
void FitPictures(Band& band, float room, float freshRoom, Document& document);

}  // namespace tarvis
