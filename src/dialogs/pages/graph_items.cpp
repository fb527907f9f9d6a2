#include "dialogs/pages/graph_items.h"

#include <string_view>

namespace tarvis {

namespace {

// The family of the parameter block, and the indexes in it.
constexpr const char* ParameterBlock = "chkItemUser";
constexpr int ParametersBox = 0;
constexpr int NameBox = 1;
constexpr int SwitchesBox = 2;

// Enables all boxes of the parameter block but the first, on which they depend.
void EnableDependents(std::span<const BoundBox> boxes, bool enabled) {
  for (const BoundBox& bound : boxes) {
    const bool depends = std::string_view(bound.Name) == ParameterBlock && bound.Index != ParametersBox;
    if (depends) bound.Box->setEnabled(enabled);
  }
}

}  // namespace

void ConnectParameterBoxes(std::span<const BoundBox> boxes) {
  TickBox* parameters = &BoxNamed(boxes, ParameterBlock, ParametersBox);
  TickBox* name = &BoxNamed(boxes, ParameterBlock, NameBox);
  TickBox* switches = &BoxNamed(boxes, ParameterBlock, SwitchesBox);
  const std::vector<BoundBox> all(boxes.begin(), boxes.end());
  QObject::connect(parameters, &TickBox::ValueChanged, parameters, [parameters, name, switches, all] {
    EnableDependents(all, parameters->IsOn());
    if (!name->IsOn()) switches->setEnabled(false);
  });
  QObject::connect(name, &TickBox::ValueChanged, switches,
                   [name, switches] { switches->setEnabled(name->IsOn()); });
}

void EnableDetails(std::span<const BoundBox> boxes, bool on) {
  for (const BoundBox& bound : boxes) bound.Box->setEnabled(on);
  EnableDependents(boxes, on && BoxNamed(boxes, ParameterBlock, ParametersBox).IsOn());
}

}  // namespace tarvis
