#include "support/source_folder.h"

namespace tarvis {

// Only this file is compiled with the folder's name, so that a compiler cache serves all other tests of every
// clone.
std::string SourceFolder() {
  return TARVIS_SOURCE_DIR;
}

}  // namespace tarvis
