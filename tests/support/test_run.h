// A run that a test makes for itself, with a desktop that notes what the user would see. All other fixtures
// of a run are built on it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printfiles/host_files.h"
#include "run/print_run.h"
#include "support/fake_desktop.h"
#include "support/pinned_time.h"
#include "support/temp_folder.h"

namespace tarvis {

// Lines as a file of the host holds them, each ended by CR LF.
inline std::string BytesOf(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// A run whose clock is stopped at PinnedTime, on a desktop of the type `NotingDesktop`.
template <typename NotingDesktop>
struct TestRunOn {
  TestRunOn() { Run.Now = PinnedTime; }

  // Loads lines as if they were the file `name`.
  void Load(std::string_view name, const std::vector<std::string>& lines) {
    LoadBytes(Run, name, BytesOf(lines));
  }

  NotingDesktop Desktop;
  PrintRun Run{Desktop};
};

using TestRun = TestRunOn<FakeDesktop>;

// The message of the RunTimeFailure that `call` throws; a test failure if it throws none.
template <typename Call>
std::string RunTimeFailureOf(Call call) {
  try {
    call();
  } catch (const RunTimeFailure& failure) {
    return failure.what();
  }
  return "(no failure)";
}

}  // namespace tarvis
