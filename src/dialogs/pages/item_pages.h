// Makes the item pages of the dialog.
#pragma once

#include "dialogs/pages/item_page.h"
#include "session/function_list.h"

namespace tarvis {

// Hidden; owned by `parent`.
ItemPage* MakeItemPage(PageId id, PrintRun& run, QWidget* parent);

}  // namespace tarvis
