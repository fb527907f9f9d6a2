#include "report/engine/section.h"

namespace tarvis {
namespace {

BandRole UsualRole(SectionKind kind) {
  if (kind == SectionKind::PageHeader) return BandRole::PageHeader;
  return kind == SectionKind::PageFooter ? BandRole::PageFooter : BandRole::Text;
}

}  // namespace

Section::Section(SectionKind kind, const char* name, float height)
    : Kind(kind), Name(name), Height(height), Role(UsualRole(kind)) {}

template <typename Kind_, typename... Arguments>
Kind_& Section::Add(Arguments&&... arguments) {
  auto control = std::make_unique<Kind_>(std::forward<Arguments>(arguments)...);
  Kind_& added = *control;
  controls_.push_back(std::move(control));
  return added;
}

Field& Section::AddField(const char* name, const Rect& place, const CellStyle& style, const char* text) {
  return Add<Field>(name, place, style, text);
}

Label& Section::AddLabel(const char* name, const Rect& place, const char* caption, const CellStyle& style) {
  return Add<Label>(name, place, style, caption);
}

Image& Section::AddImage(const char* name, const Rect& place, Fit fit) {
  return Add<Image>(name, place, fit);
}

Line& Section::AddLine(const char* name, float x1, float y1, float x2, float y2, int weight) {
  return Add<Line>(name, Rect{x1, y1, x2 - x1, y2 - y1}, weight);
}

Shape& Section::AddShape(const char* name, const Rect& place, std::optional<Color> fill) {
  return Add<Shape>(name, place, fill);
}

CheckBox& Section::AddCheckBox(const char* name, const Rect& place) {
  return Add<CheckBox>(name, place);
}

SubReport& Section::AddSubReport(const char* name, const Rect& place) {
  holdsSubReport_ = true;
  return Add<SubReport>(name, place);
}

}  // namespace tarvis
