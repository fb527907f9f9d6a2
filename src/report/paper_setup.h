// The pages that documents are composed for.
#pragma once

#include "report/engine/document.h"

namespace tarvis {

// The pages for paper of this size in twips, with the margins of the master report. Paper that is narrower
// than the print width gives pages of its shape that are as wide as the reports need: they are shrunk to the
// paper when they are printed, so that nothing lies beyond its edge.
PageSetup SetupForPaper(float width, float height);

}  // namespace tarvis
