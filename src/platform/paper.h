// The paper that documents are composed for.
#pragma once

#include "report/engine/document.h"

namespace tarvis {

// The default printer's paper, upright; where no printer is set up, the usual one of the country: A4 or
// Letter.
[[nodiscard]] PageSetup DefaultPaper();

}  // namespace tarvis
