#include "run/print_run.h"

namespace tarvis {
namespace {

std::tm LocalTime() {
  const std::time_t now = std::time(nullptr);
  return *std::localtime(&now);
}

}  // namespace

PrintRun::PrintRun(tarvis::Desktop& desktop) : Desktop(desktop), Now(LocalTime) {}

}  // namespace tarvis
