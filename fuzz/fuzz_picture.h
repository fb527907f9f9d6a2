// What all picture fuzzers do with their input: it loads and paints, or it is refused with a reason.
#pragma once

#include <functional>

#include "pictures/byte_reader.h"
#include "pictures/paintable_picture.h"

namespace tarvis {

class GlyphOutlines;
class PictureBudget;

// Loads by `load`, which may throw what the loader makes a run-time failure of, and paints on a page.
void FuzzPicture(
    const std::function<PicturePtr(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget)>& load,
    Bytes bytes);

}  // namespace tarvis
