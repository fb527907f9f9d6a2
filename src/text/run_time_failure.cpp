#include "text/run_time_failure.h"

namespace tarvis {
namespace {

// "Trace.tmp:17: CursolSelect: not a whole number: 'x'"
std::string Compose(const std::string& reason, const FailurePlace& place) {
  std::string message = place.File;
  if (place.Line > 0) message += ":" + std::to_string(place.Line);
  if (!message.empty()) message += ": ";
  if (!place.Key.empty()) message += place.Key + ": ";
  message += reason;
  if (!place.Text.empty()) message += ": '" + place.Text + "'";
  return message;
}

}  // namespace

RunTimeFailure::RunTimeFailure(const std::string& reason, FailurePlace place)
    : std::runtime_error(Compose(reason, place)), reason_(reason), place_(std::move(place)) {}

RunTimeFailure RunTimeFailure::At(const FailurePlace& place) const {
  FailurePlace merged = place_;
  if (merged.File.empty()) merged.File = place.File;
  if (merged.Line == 0) merged.Line = place.Line;
  if (merged.Key.empty()) merged.Key = place.Key;
  if (merged.Text.empty()) merged.Text = place.Text;
  return {reason_, merged};
}

}  // namespace tarvis
