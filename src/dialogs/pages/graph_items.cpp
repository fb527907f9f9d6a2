#include "dialogs/pages/graph_items.h"

namespace tarvis {

namespace {

void SetEnabled(std::span<const BoundBox> boxes, bool enabled) {
  for (const BoundBox& bound : boxes) bound.Box->setEnabled(enabled);
}

}  // namespace

void ConnectParameterBoxes(std::span<const BoundBox> boxes) {
  TickBox* parameters = boxes[0].Box;
  TickBox* name = boxes[1].Box;
  TickBox* switches = boxes[2].Box;
  const std::vector<BoundBox> dependents(boxes.begin() + 1, boxes.end());
  QObject::connect(parameters, &TickBox::ValueChanged, parameters, [parameters, name, switches, dependents] {
    SetEnabled(dependents, parameters->IsOn());
    if (!name->IsOn()) switches->setEnabled(false);
  });
  QObject::connect(name, &TickBox::ValueChanged, switches,
                   [name, switches] { switches->setEnabled(name->IsOn()); });
}

void EnableDetails(std::span<const BoundBox> boxes, bool on) {
  SetEnabled(boxes, on);
  const std::span<const BoundBox> user = boxes.last(ParameterBoxes + 1).first(ParameterBoxes);
  SetEnabled(user.subspan(1), on && user[0].Box->IsOn());
}

}  // namespace tarvis
