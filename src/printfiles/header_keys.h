// The keys that the host's data files share.
#pragma once

#include <cstdint>

#include "printfiles/key_table.h"
#include "run/file_header.h"
#include "run/user_data.h"

namespace tarvis {

// The six header keys. Files of any `File-Spec` pass.
KeyTable HeaderKeys(FileHeader& header);

// The six header keys. A `File-Spec` below 3 is refused; a file without one passes.
KeyTable HeaderKeysOfNewFiles(FileHeader& header);

// `CommentCnt` and `Comment`.
KeyTable CommentKeys(UserData& user);

}  // namespace tarvis
