// Finds the place that was read in one document in another one that was composed from the same data.
#pragma once

#include "preview/window/preview_memory.h"
#include "report/engine/document.h"

namespace tarvis {

// Describes `place` for another document.
[[nodiscard]] ReadingPlace Remember(const Document& document, const PagePlace& place);

// The same contents entry at the same height. Where the entry is missing, the same page, or the last one of a
// shorter document.
[[nodiscard]] PagePlace FindAgain(const Document& document, const ReadingPlace& place);

}  // namespace tarvis
