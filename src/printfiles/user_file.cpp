#include "printfiles/user_file.h"

#include "printfiles/header_keys.h"
#include "printfiles/user_block.h"
#include "run/print_run.h"

namespace tarvis {

bool ReadUserFile(PrintRun& run) {
  return ReadLines(run, HeaderKeysOfNewFiles(run.Header) + UserBlockKeys(run.User));
}

}  // namespace tarvis
