// Values of the registry of Windows, which are only read.
#pragma once

#include <optional>
#include <string>

namespace tarvis {

// The value `name` of `key` below HKEY_LOCAL_MACHINE, as a 32-bit program sees it, or else as a 64-bit one
// does. Text up to its first NUL, in which variables stay as they are; what is no text counts as bytes of the
// system's code page. Nothing if there is no such value, or if it has more than 1024 characters.
std::optional<std::string> RegistryValue(const std::string& key, const std::string& name);

}  // namespace tarvis
