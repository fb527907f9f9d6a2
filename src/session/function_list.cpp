#include "session/function_list.h"

#include <array>

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

// Version 100 lacks the last two entries, analysis and simulation.
std::span<const FunctionEntry> OfVersion(std::span<const FunctionEntry> entries, std::string_view version) {
  if (version == "200") return entries;
  if (version == "100") return entries.first(entries.size() - 2);
  return {};
}

constexpr std::array ModeChoices{
    ModeChoice{2, "User", 0, false},      ModeChoice{2, "Trace", 1, false},
    ModeChoice{2, "IdxTbl", 2, false},    ModeChoice{2, "ZoneTbl", 3, false},
    ModeChoice{2, "JogTbl", 4, false},    ModeChoice{2, "PrnSetting", 0, true},
    ModeChoice{4, "User", 0, false},      ModeChoice{4, "Trace", 1, false},
    ModeChoice{4, "RealTrace", 2, false}, ModeChoice{4, "Mecha", 3, false},
    ModeChoice{4, "Sim", 4, false},       ModeChoice{4, "SimEx", 4, false},
    ModeChoice{4, "PrnSetting", 0, true}, ModeChoice{1, "User", 0, false},
    ModeChoice{1, "UPWizard", 1, false},  ModeChoice{1, "Trace", 2, false},
    ModeChoice{1, "RealTrace", 3, false}, ModeChoice{1, "Mecha", 4, false},
    ModeChoice{1, "Sim", 5, false},       ModeChoice{1, "PrnSetting", 0, true},
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

const ModeChoice* FindModeChoice(std::int16_t edition, std::string_view mode) {
  for (const ModeChoice& choice : ModeChoices) {
    if (choice.Edition == edition && choice.Mode == mode) return &choice;
  }
  return nullptr;
}

}  // namespace tarvis
