// The limits on typed text, in bytes of the code page, and the only messages that text inputs raise.
#pragma once

#include "dialogs/controls/text_box.h"

namespace tarvis {

struct PrintRun;

// Whether the text was within `limit` bytes; the box then takes `limit` characters. Otherwise the text is
// cut, character by character, to what fits and written back, which runs the change handling of the box with
// a text that passes; the box takes no more characters, a message informs the user, and the box gets the
// focus.
[[nodiscard]] bool TrimToByteLimit(PrintRun& run, int limit, InputBox& box);

// Whether the text is within `limit` bytes. Otherwise shows a message, gives the box the focus and doesn't
// change the text.
[[nodiscard]] bool CheckByteLimit(PrintRun& run, int limit, InputBox& box);

// The same for a text that may take `maxLines` lines of `width` bytes.
[[nodiscard]] bool CheckLineLimit(PrintRun& run, int maxLines, int width, InputBox& box);

}  // namespace tarvis
