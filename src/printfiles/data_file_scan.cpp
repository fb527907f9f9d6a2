#include "printfiles/data_file_scan.h"

#include <string>

#include "printfiles/host_files.h"
#include "run/print_run.h"
#include "text/native_path.h"
#include "text/numbers.h"
#include "text/text.h"

namespace tarvis {

void ScanLines(const PrintRun& run,
               const std::function<bool(std::string_view key, std::string_view rest)>& visit) {
  const PrintSession& session = run.Session;
  for (int line = 0; line < session.LineCount; ++line) {
    std::string_view rest = session.Lines[line];
    const std::string_view key = NextField(rest);
    try {
      if (!visit(key, rest)) return;
    } catch (const RunTimeFailure& failure) {
      throw failure.AtKey({.File = session.LinesFile, .Line = line + 1, .Key = std::string(key), .Text = {}});
    }
  }
}

bool ScanOverlap(PrintRun& run, std::string_view fileName) {
  const std::string path = run.Session.TempFolder + std::string(fileName);
  const std::int32_t count = LoadLines(run, path);
  if (count < 0) return !FileExists(path);
  if (count > 0) ScanOverlap(run);
  return true;
}

void ScanOverlap(PrintRun& run) {
  PrintSession& session = run.Session;
  session.OverlapMode = 0;
  session.OverlapNum = 0;
  int found = 0;
  ScanLines(run, [&session, &found](std::string_view key, std::string_view rest) {
    if (key == "OverlapMode") {
      session.OverlapMode = StrictInteger(rest);
      ++found;
      return session.OverlapMode != 0 && found < 2;
    }
    if (key == "OverlapNum") {
      session.OverlapNum = StrictInteger(rest);
      ++found;
    }
    return found < 2;
  });
}

}  // namespace tarvis
