// The one exception of the system: what no routine handles, such as a strict number that fails.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace tarvis {

// Where a run-time failure happened and what was wrong. Members that aren't set are left out of the message.
struct FailurePlace {
  std::string File;                                // name of the file read, or of the report that ran
  int Line = 0;                                    // 1-based line of the file, 0 if none
  std::string Key;                                 // key of the line, or name of the control or array
  int Element = 0;                                 // 1-based field of the line, 0 if the line is one value
  std::optional<std::string> Text = std::nullopt;  // that could not be used; it may well be empty
};

// Thrown for a strict number that fails, an index out of range, a missing argument, a picture that can't be
// shown. It is caught at the top of the program, shown as "Run-time error", and ends the process with exit
// status 1 and no file deleted. It never becomes a numbered failure.
class RunTimeFailure : public std::runtime_error {
 public:
  RunTimeFailure(const std::string& reason, FailurePlace place = {});

  const std::string& Reason() const { return reason_; }
  const FailurePlace& Place() const { return place_; }

  // A copy that names the place, for members which the thrower could not know. Members already set stay.
  RunTimeFailure At(const FailurePlace& place) const;
  // A copy with the key of `place` even if the thrower named another thing, such as an array.
  RunTimeFailure AtKey(const FailurePlace& place) const;

 private:
  std::string reason_;
  FailurePlace place_;
};

}  // namespace tarvis
