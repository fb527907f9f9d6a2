// Text between the form of Windows and that of this program.
#pragma once

#include <string>
#include <string_view>

namespace tarvis {

// UTF-8 of UTF-16; what is no text becomes the replacement character.
std::string Utf8OfWide(std::wstring_view text);
std::wstring WideOfUtf8(std::string_view text);

}  // namespace tarvis
