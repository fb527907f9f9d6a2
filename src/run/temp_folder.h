// The folder of the host's data files and pictures, which every run leaves without them.
#pragma once

#include <string_view>

namespace tarvis {

// Deletes the files directly in `folder` whose names end in `ending`, in whatever letter case. Nothing if
// `folder` is empty. A file that can't be deleted stays, without a message.
void DeleteFiles(std::string_view folder, std::string_view ending);

}  // namespace tarvis
