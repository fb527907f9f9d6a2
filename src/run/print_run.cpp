#include "run/print_run.h"

namespace tarvis {
namespace {

std::tm LocalTime() {
  const std::time_t now = std::time(nullptr);
  return *std::localtime(&now);
}

bool TakeAsSettled(const std::filesystem::path& /*fresh*/, const std::filesystem::path& /*replaced*/) {
  return true;
}

}  // namespace

PrintRun::PrintRun(tarvis::Desktop& desktop) : Desktop(desktop), Now(LocalTime), SettleFile(TakeAsSettled) {}

PrintRun::~PrintRun() = default;

}  // namespace tarvis
