#include "printfiles/user_file.h"

#include "launch/print_run.h"
#include "printfiles/header_keys.h"
#include "printfiles/user_block.h"

namespace tarvis {

bool ReadUserFile(PrintRun& run) {
  return ReadLines(run, HeaderKeysOfNewFiles(run.Header) + UserBlockKeys(run.User));
}

}  // namespace tarvis
