// A run that fails or ends, in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include "run/failures.h"
#include "support/test_run.h"

namespace tarvis {

class Failures : public testing::Test, protected TestRun {
 protected:
  using TestRun::Run;

  Failures() { Run.Session.TempFolder = Folder.HostPath("tmp\\"); }

  template <typename Call>
  int ExitStatusOf(Call call) {
    try {
      call();
    } catch (const RunEnded& end) {
      return end.ExitStatus;
    }
    return -1;
  }

  TempFolder Folder;
};

}  // namespace tarvis
