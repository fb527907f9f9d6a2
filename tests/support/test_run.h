// A run that a test makes for itself, with a desktop that notes what the user would see.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "run/print_run.h"
#include "support/fake_desktop.h"
#include "support/temp_folder.h"

namespace tarvis {

// A run whose clock stands at 2026/03/05 17:04:09.
struct TestRun {
  TestRun();

  // Loads lines, each ended by CR LF, as if they were the file `name`.
  void Load(std::string_view name, const std::vector<std::string>& lines);

  FakeDesktop Desktop;
  PrintRun Run{Desktop};
};

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
