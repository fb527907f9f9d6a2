// Texts of files, fit to be shown in one line of a message.
#pragma once

#include <string>
#include <string_view>

namespace tarvis {

// At most some sixty bytes of `text`, cut between characters, with control characters written as "\x0A".
std::string Excerpt(std::string_view text);

}  // namespace tarvis
