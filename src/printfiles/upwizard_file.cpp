#include "printfiles/upwizard_file.h"

#include "printfiles/header_keys.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

// The first field is a number that chooses the slot; `fill` takes the slot and the fields that follow.
template <typename Slots, typename Fill>
LineHandler SlotLine(Slots& slots, Fill fill) {
  return [&slots, fill](LineValue& value) -> Refusal {
    const std::string_view number = value.Field();
    auto& slot = slots[value.Number(number)];
    slot.Slot = number;
    fill(slot, value);
    return Accepted;
  };
}

void FillText(WizardText& slot, LineValue& value) {
  value.FieldsAndRest(slot.Text);
}
void FillRelay(WizardRelay& slot, LineValue& value) {
  value.FieldsAndRest(slot.Number, slot.Picture, slot.Name);
}

KeyTable WizardKeys(UPWizardData& wizard) {
  return {
      {"BASE", Fields(wizard.Base)},
      {"CONTROL", Fields(wizard.ControlCaption, wizard.Control)},
      {"RATIO", Fields(wizard.RatioCaption, wizard.Ratio, wizard.RatioUnit)},
      {"OUTNUM", SlotLine(wizard.OutNum, FillText)},
      {"OUTSTR", SlotLine(wizard.OutStr, FillText)},
      {"RY", SlotLine(wizard.Ry, FillRelay)},
  };
}

}  // namespace

bool ReadUPWizardFile(PrintRun& run) {
  return ReadLines(run, HeaderKeys(run.Header) + WizardKeys(run.UPWizard));
}

}  // namespace tarvis
