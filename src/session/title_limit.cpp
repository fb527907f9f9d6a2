#include "session/title_limit.h"

#include <string>

#include "run/print_run.h"

namespace tarvis {

void TellByteLimit(PrintRun& run, int limit) {
  run.Desktop.ShowMessage(InputErrorTitle, "Try with  Less Characters.  Up to " + std::to_string(limit) +
                                               " Characters can be Inputted.");
}

}  // namespace tarvis
