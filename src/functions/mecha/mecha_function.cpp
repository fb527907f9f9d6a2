#include "functions/mecha/mecha_function.h"

#include <array>

#include "functions/contents.h"
#include "functions/mecha/rptMechaGraph.h"
#include "functions/mecha/rptMechaMeasure.h"
#include "functions/mecha/rptMechaNotch.h"
#include "functions/mecha/rptMechaResonance.h"
#include "functions/module_list.h"
#include "printfiles/mecha_file.h"

namespace tarvis {
namespace {

constexpr std::array Reports = {
    NamedReport{"rptMechaGraph", MakeReport<rptMechaGraph>},
    NamedReport{"rptMechaResonance", MakeReport<rptMechaResonance>},
    NamedReport{"rptMechaNotch", MakeReport<rptMechaNotch>},
    NamedReport{"rptMechaMeasure", MakeReport<rptMechaMeasure>},
};

ModuleList Modules(PrintRun& run) {
  const auto& option = run.Options.MechaOption;
  ModuleList modules{"rptMechaGraph"};
  AddIf(modules, option.IsOn(MechaElement::Resonance), "rptMechaResonance");
  AddIf(modules, option.IsOn(MechaElement::Notch), "rptMechaNotch");
  AddIf(modules, option.IsOn(MechaElement::Measurement), "rptMechaMeasure");
  AddIf(modules, option.IsOn(MechaElement::Date), "rptDataDate");
  AddIf(modules, option.IsOn(MechaElement::Comments), "rptUserComment");
  return modules;
}

std::string ContentsOf(const PrintRun& run) {
  const bool hasCursors = run.Mecha.CursolSelect != 0;
  return GraphContents(run.Mecha.MechaGraph1) + ", " + (hasCursors ? "cursor table" : "no cursor table") +
         ", " + CommentContents(run);
}

}  // namespace

constinit const PrintFunction MechaFunction = {.Mode = Mode::Mecha,
                                               .Header = &PrintOptions::MechaHeader,
                                               .File = "Mecha",
                                               .Read = ReadMechaFile,
                                               .WrongFile = Failure::WrongMechanicalAnalysisFile,
                                               .Modules = Modules,
                                               .Reports = Reports,
                                               .Contents = ContentsOf};

}  // namespace tarvis
