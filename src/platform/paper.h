// The paper that documents are composed for.
#pragma once

#include "report/engine/document.h"

namespace tarvis {

// For the default printer's paper, upright; where no printer is set up, for the usual one of the country: A4
// or Letter.
[[nodiscard]] PageSetup DefaultPaper();

}  // namespace tarvis
