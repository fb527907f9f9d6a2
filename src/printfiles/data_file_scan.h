// A quick look into a data file for a few keys, before the file's own reader runs.
#pragma once

#include <functional>
#include <string_view>

namespace tarvis {

struct PrintRun;

// Gives key and rest of each line that was loaded last to `visit`, until it returns false. A RunTimeFailure
// of `visit` leaves with file, line and key added.
void ScanLines(const PrintRun& run,
               const std::function<bool(std::string_view key, std::string_view rest)>& visit);

// Sets `OverlapMode` and `OverlapNum` of the session from the lines that were loaded last.
void ScanOverlap(PrintRun& run);

// The same from the data file `fileName` in the temporary folder. Without such a file, or if it is empty,
// both keep their values. They do, too, if it is there and can't be read; then this returns false, with the
// reason in `Diagnosis` of the session.
bool ScanOverlap(PrintRun& run, std::string_view fileName);

}  // namespace tarvis
