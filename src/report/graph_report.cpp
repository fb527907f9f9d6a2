#include "report/graph_report.h"

namespace tarvis {
namespace {

struct Choice {
  const std::string* Path = nullptr;  // empty for a `ColorType` that chooses neither look
  Failure GraphMissing = {};
};

Choice Choose(int colorType, const PicturePaths& paths) {
  if (colorType == 0) return {&paths.BlackAndWhite, Failure::BlackAndWhiteGraphNotFound};
  if (colorType == 1) return {&paths.Color, Failure::ColorGraphNotFound};
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
  return LoadPictureOrFail(*choice.Path, Failure::ExplanatoryFileNotFound);
}

}  // namespace tarvis
