// The enabling rules that the pages of the graph functions share.
#pragma once

#include <span>

#include "dialogs/pages/item_page.h"

namespace tarvis {

// The five boxes of the parameter block are the family "chkItemUser": "Parameters", "Name", "Switches Info",
// "Unit", "Default Setting". All depend on the first, and "Switches Info" depends on "Name" besides. A greyed
// box keeps its mark and element.
void ConnectParameterBoxes(std::span<const BoundBox> boxes);

// Enables the printing items of one data set, which an overlapped print may leave out as a whole.
// "Switches Info" follows "Parameters" here without a look at "Name".
void EnableDetails(std::span<const BoundBox> boxes, bool on);

}  // namespace tarvis
