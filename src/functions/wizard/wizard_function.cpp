#include "functions/wizard/wizard_function.h"

#include <algorithm>
#include <array>

#include "functions/contents.h"
#include "functions/module_list.h"
#include "functions/wizard/rptUPWizard.h"
#include "printfiles/upwizard_file.h"
#include "text/excerpt.h"

namespace tarvis {
namespace {

constexpr std::array Reports = {NamedReport{"rptUPWizard", MakeReport<rptUPWizard>}};

ModuleList Modules(PrintRun& /*run*/) {
  return {"rptUPWizard"};
}

template <typename Slots>
int UsedSlots(const Slots& slots) {
  return static_cast<int>(std::ranges::count_if(slots, [](const auto& slot) { return !slot.Slot.empty(); }));
}

std::string ContentsOf(const PrintRun& run) {
  const UPWizardData& wizard = run.UPWizard;
  return "diagram '" + Excerpt(wizard.Base) + "', " + Counted(UsedSlots(wizard.Ry), "relay", "relays") +
         ", " + Counted(UsedSlots(wizard.OutNum), "output number", "output numbers") + ", " +
         Counted(UsedSlots(wizard.OutStr), "output name", "output names");
}

}  // namespace

constinit const PrintFunction WizardFunction = {.Mode = Mode::UPWizard,
                                                .Header = &PrintOptions::PrmWizHeader,
                                                .File = "UPWizard",
                                                .Read = ReadUPWizardFile,
                                                .WrongFile = Failure::WrongParameterWizardFile,
                                                .Modules = Modules,
                                                .Reports = Reports,
                                                .Contents = ContentsOf};

}  // namespace tarvis
