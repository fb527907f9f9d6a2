#include "functions/contents.h"

#include <algorithm>

#include "run/print_run.h"
#include "text/excerpt.h"
#include "text/text.h"

namespace tarvis {

std::string Counted(int count, std::string_view one, std::string_view many) {
  return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

std::string CommentContents(const PrintRun& run) {
  return run.User.Comment.empty() ? "no comment"
                                  : "comment '" + Excerpt(NewlinesToBlanks(run.User.Comment)) + "'";
}

std::string ParameterContents(const PrintRun& run) {
  return Counted(run.User.UserNum, "parameter", "parameters") + ", " +
         Counted(run.User.SwitchNum, "switch parameter", "switch parameters") + ", " + CommentContents(run);
}

std::string CursorRowContents(int count) {
  return Counted(count, "cursor row", "cursor rows");
}

std::string GraphContents(const std::string& path) {
  return path.empty() ? "no black-and-white graph" : "graph '" + Excerpt(path) + "'";
}

// A channel without a name isn't used.
std::string ChannelContents(const Recording& recording) {
  const auto used =
      std::ranges::count_if(recording.Channels(), [](const TraceItem* item) { return !item->Name.empty(); });
  return Counted(static_cast<int>(used), "channel", "channels");
}

std::string OverlapContents(const Recording& recording) {
  return recording.OverlapMode == 1 ? "overlap of " + Counted(recording.OverlapNum, "data set", "data sets")
                                    : "no overlap";
}

}  // namespace tarvis
