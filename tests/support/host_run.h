// A run whose host has written its data and picture files into a temporary folder.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/report_run.h"

namespace tarvis {

struct HostRun : testing::Test {
  HostRun() { Run.Session.TempFolder = Folder.SystemPath(); }

  // The path of a file in the folder, whether it is there or not.
  std::string PathOf(const std::string& name) const { return Folder.SystemPath() + name; }
  // The path of a picture file that is there. The end of a run takes *.emf away.
  std::string Picture(const std::string& name) const {
    Folder.Write(name, "picture");
    return PathOf(name);
  }
  void WriteLines(const std::string& name, const std::vector<std::string>& lines) const {
    Folder.Write(name, BytesOf(lines));
  }
  // Expects the report to end the run with numbered failure `message`, in the words that the user reads.
  void ExpectFailure(const std::string& report, const std::string& message) {
    EXPECT_THROW(Report.ComposeAlone(report), RunEnded) << report;
    EXPECT_THAT(Report.Desktop.Messages,
                testing::ElementsAre("Printing Error|" + message + "\nPrinting Process is canceled."));
    EXPECT_EQ(std::ranges::count(Report.Desktop.Calls, "beep"), 5);
    EXPECT_THAT(Report.Desktop.Diagnoses,
                testing::ElementsAre(testing::StartsWith(report + ": no picture file '")));
    Report.Desktop = {};
  }

  TempFolder Folder;
  ReportRun Report;
  PrintRun& Run = Report.Run;
};

// "page: caption @ height in the body" of each contents entry of a document with the master report's margins.
inline std::vector<std::string> EntriesOf(const Document& document) {
  std::vector<std::string> entries;
  for (const ContentsEntry& entry : document.Contents) {
    entries.push_back(std::to_string(entry.Page + 1) + ": " + std::string(entry.Level == 0 ? "" : "- ") +
                      entry.Text + " @ " + std::to_string(static_cast<int>(entry.Top - document.Setup.Top)));
  }
  return entries;
}

}  // namespace tarvis
