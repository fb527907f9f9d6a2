#include "text/run_time_failure.h"

namespace tarvis {
namespace {

// "Sim.tmp:17: PatternSetting: element 4: not a number: 'x'"
std::string Compose(const std::string& reason, const FailurePlace& place) {
  std::string message = place.File;
  if (place.Line > 0) message += ":" + std::to_string(place.Line);
  if (!message.empty()) message += ": ";
  if (!place.Key.empty()) message += place.Key + ": ";
  if (place.Element > 0) message += "element " + std::to_string(place.Element) + ": ";
  message += reason;
  if (place.Text) message += ": '" + *place.Text + "'";
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
  if (merged.Element == 0) merged.Element = place.Element;
  if (!merged.Text) merged.Text = place.Text;
  return {reason_, merged};
}

RunTimeFailure RunTimeFailure::AtKey(const FailurePlace& place) const {
  FailurePlace own = place_;
  own.Key.clear();
  return RunTimeFailure(reason_, own).At(place);
}

}  // namespace tarvis
