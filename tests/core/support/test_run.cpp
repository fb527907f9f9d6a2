#include "core/support/test_run.h"

#include "printfiles/host_files.h"

namespace tarvis {
namespace {

std::tm PinnedTime() {
  std::tm time{};
  time.tm_year = 2026 - 1900;
  time.tm_mon = 2;
  time.tm_mday = 5;
  time.tm_hour = 17;
  time.tm_min = 4;
  time.tm_sec = 9;
  return time;
}

}  // namespace

TestRun::TestRun() {
  Run.Now = PinnedTime;
}

void TestRun::Load(std::string_view name, const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  LoadBytes(Run, name, bytes);
}

}  // namespace tarvis
