#include "session/choices.h"

#include "printfiles/print_options_file.h"

namespace tarvis {

void RequireChoice(PrintRun& run, const std::int16_t& option, int lowest, int highest) {
  if (option < lowest || option > highest) throw RunTimeFailure("no such choice", OptionPlace(run, option));
}

void RequireMark(PrintRun& run, const std::int16_t& option) {
  RequireChoice(run, option, 0, HighestMark);
}

}  // namespace tarvis
