// Phrases that describe what a data file holds.
#pragma once

#include <string>
#include <string_view>

namespace tarvis {

struct PrintRun;
struct Recording;

// "1 switch", "2 switches"
std::string Counted(int count, std::string_view one, std::string_view many);

std::string CommentContents(const PrintRun& run);
// Parameters, switch parameters and comment.
std::string ParameterContents(const PrintRun& run);
std::string CursorRowContents(int count);
// `path` is that of the black-and-white graph.
std::string GraphContents(const std::string& path);
std::string ChannelContents(const Recording& recording);
std::string OverlapContents(const Recording& recording);

}  // namespace tarvis
