// The electrical schematic diagram of the parameter wizard, as UPWizard.tmp describes it.
#pragma once

#include <string>

#include "text/checked_array.h"

namespace tarvis {

struct WizardText {
  std::string Slot;  // the slot number as it was written in the line
  std::string Text;
};

struct WizardRelay {
  std::string Slot;  // the slot number as it was written in the line
  std::string Number;
  std::string Picture;  // path; may be empty
  std::string Name;
};

// Slots count from 1, and the highest of each is read and never printed. Not emptied by a read.
struct UPWizardData {
  std::string Base;  // path of the diagram's base picture
  std::string ControlCaption;
  std::string Control;
  std::string RatioCaption;
  std::string Ratio;
  std::string RatioUnit;
  BoundedArray<WizardText, 1, 4> OutNum;
  BoundedArray<WizardText, 1, 7> OutStr;
  BoundedArray<WizardRelay, 1, 8> Ry;
};

}  // namespace tarvis
