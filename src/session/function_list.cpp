#include "session/function_list.h"

namespace tarvis {

namespace {

constexpr std::array Edition2{
    FunctionEntry{"Parameters", PageId::InfUser},        FunctionEntry{"Tracing", PageId::InfTrace},
    FunctionEntry{"Program Table", PageId::InfIdxTbl},   FunctionEntry{"Zone Table", PageId::InfZoneTbl},
    FunctionEntry{"Jog Speed Table", PageId::InfJogTbl},
};

constexpr std::array Edition4{
    FunctionEntry{"Parameters", PageId::InfUser},
    FunctionEntry{"Tracing", PageId::InfTrace},
    FunctionEntry{"Real-Time Tracing", PageId::InfRealTrace},
    FunctionEntry{"Mechanical Analysis", PageId::InfMecha},
    FunctionEntry{"Dynamics Simulation", PageId::InfSim},
};

// "Parameter Wizard" shows the page of "Tracing": this edition always did.
constexpr std::array Edition1{
    FunctionEntry{"Parameters", PageId::InfUser},
    FunctionEntry{"Parameter Wizard", PageId::InfTrace},
    FunctionEntry{"Tracing", PageId::InfTrace},
    FunctionEntry{"Real-Time Tracing", PageId::InfRealTrace},
    FunctionEntry{"Mechanical Analysis", PageId::InfMecha},
    FunctionEntry{"Dynamics Simulation", PageId::InfSim},
};

// Version 100 doesn't have the last two entries, analysis and simulation.
std::span<const FunctionEntry> OfVersion(std::span<const FunctionEntry> entries, std::string_view version) {
  if (version == "200") return entries;
  if (version == "100") return entries.first(entries.size() - 2);
  return {};
}

using enum FunctionChoice;

constexpr std::array ModeChoices{
    ModeChoice{2, Mode::User, 0, Fixed},      ModeChoice{2, Mode::Trace, 1, Fixed},
    ModeChoice{2, Mode::IdxTbl, 2, Fixed},    ModeChoice{2, Mode::ZoneTbl, 3, Fixed},
    ModeChoice{2, Mode::JogTbl, 4, Fixed},    ModeChoice{2, Mode::PrnSetting, 0, Free},
    ModeChoice{4, Mode::User, 0, Fixed},      ModeChoice{4, Mode::Trace, 1, Fixed},
    ModeChoice{4, Mode::RealTrace, 2, Fixed}, ModeChoice{4, Mode::Mecha, 3, Fixed},
    ModeChoice{4, Mode::Sim, 4, Fixed},       ModeChoice{4, Mode::SimEx, 4, Fixed},
    ModeChoice{4, Mode::PrnSetting, 0, Free}, ModeChoice{1, Mode::User, 0, Fixed},
    ModeChoice{1, Mode::UPWizard, 1, Fixed},  ModeChoice{1, Mode::Trace, 2, Fixed},
    ModeChoice{1, Mode::RealTrace, 3, Fixed}, ModeChoice{1, Mode::Mecha, 4, Fixed},
    ModeChoice{1, Mode::Sim, 5, Fixed},       ModeChoice{1, Mode::PrnSetting, 0, Free},
};

}  // namespace

std::span<const FunctionEntry> FunctionEntries(std::int16_t edition, std::string_view version) {
  switch (edition) {
    case 1:
      return OfVersion(Edition1, version);
    case 2:
      return Edition2;
    case 4:
      return OfVersion(Edition4, version);
    default:
      return {};
  }
}

const ModeChoice* FindModeChoice(std::int16_t edition, Mode mode) {
  for (const ModeChoice& choice : ModeChoices) {
    if (choice.Edition == edition && choice.Mode == mode) return &choice;
  }
  return nullptr;
}

}  // namespace tarvis
