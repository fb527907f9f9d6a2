// Help files that the operating system has a viewer of its own for.
#pragma once

#include <cstdint>
#include <filesystem>

namespace tarvis {

// Opens `file` at the topic that has this number. False if the system has no such viewer for files of this
// kind, or can't start it.
bool OpenInHelpViewer(const std::filesystem::path& file, std::int32_t context);

}  // namespace tarvis
