#include "report/graph_report.h"

namespace tarvis {
namespace {

constexpr int BlackAndWhiteGraphMissing = 6;
constexpr int LegendMissing = 7;
constexpr int ColorGraphMissing = 8;

struct Choice {
  const std::string* Path = nullptr;  // empty for a `ColorType` that chooses neither look
  int GraphMissing = 0;
};

Choice Choose(int colorType, const PicturePaths& paths) {
  if (colorType == 0) return {&paths.BlackAndWhite, BlackAndWhiteGraphMissing};
  if (colorType == 1) return {&paths.Color, ColorGraphMissing};
  return {};
}

}  // namespace

PicturePtr GraphReport::LoadGraph(const PicturePaths& paths) {
  const Choice choice = Choose(Run.Options.ColorType, paths);
  return choice.Path == nullptr ? nullptr : LoadPictureOrFail(*choice.Path, choice.GraphMissing);
}

PicturePtr GraphReport::LoadLegend(const PicturePaths& paths) {
  const Choice choice = Choose(Run.Options.ColorType, paths);
  if (choice.Path == nullptr || choice.Path->empty()) return nullptr;
  return LoadPictureOrFail(*choice.Path, LegendMissing);
}

}  // namespace tarvis
