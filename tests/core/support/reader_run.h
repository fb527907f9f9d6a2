// A run in which one reader of the host's files reads lines that a test gives it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/support/line_cases.h"

namespace tarvis {

class ReaderRun : public testing::Test, protected TestRun {
 protected:
  using Lines = std::vector<std::string>;
  using TestRun::Run;

  explicit ReaderRun(HostFile file) : file_(std::move(file)) {}

  // Reads these lines and no others.
  bool Read(const Lines& lines) { return Read(lines, file_.Name); }
  // The same with the lines as those of a companion.
  bool Read(const Lines& lines, const std::string& name) {
    Load(name, lines);
    return file_.Read(Run);
  }
  // The diagnosis of a file that must be refused.
  std::string Refused(const Lines& lines) { return Read(lines) ? "(accepted)" : Run.Session.Diagnosis; }
  // The message of the run-time failure in which reading must end.
  std::string Stopped(const Lines& lines) {
    return RunTimeFailureOf([&] { Read(lines); });
  }
  static TextLine Setting(const char* key, NameValueUnit& setting) {
    return {key, LastPart::kField, {setting.Name, setting.Value, setting.Unit}};
  }

 private:
  HostFile file_;
};

}  // namespace tarvis
