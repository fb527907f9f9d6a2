#include "core/support/test_run.h"

#include "printfiles/host_files.h"
#include "support/pinned_time.h"

namespace tarvis {
TestRun::TestRun() {
  Run.Now = PinnedTime;
}

void TestRun::Load(std::string_view name, const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  LoadBytes(Run, name, bytes);
}

}  // namespace tarvis
