// Page content of the toolkit with no more digits than can be seen.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvis {

enum class Inks { AsTheyAre, Greys };

// The content with all places rounded to a tenth of a twip or finer, whatever matrix they are under, and with
// these inks. Nothing if it has anything that the toolkit doesn't write for pictures, such as an image within
// the content.
[[nodiscard]] std::optional<std::string> RoundedContent(std::string_view content,
                                                        Inks inks = Inks::AsTheyAre);

}  // namespace tarvis
