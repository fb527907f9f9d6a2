// What the function list of the dialog offers, by edition and version of the host.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "run/mode.h"

namespace tarvis {

// The ten item pages.
enum class PageId {
  InfUser,
  InfTrace,
  InfRealTrace,
  InfWizard,
  InfMecha,
  InfSim,
  InfSimOverlap,
  InfIdxTbl,
  InfZoneTbl,
  InfJogTbl,
};

// Those that a function list can show; none shows that of the parameter wizard.
inline constexpr std::array ListedPages{
    PageId::InfUser,       PageId::InfTrace,  PageId::InfRealTrace, PageId::InfMecha,  PageId::InfSim,
    PageId::InfSimOverlap, PageId::InfIdxTbl, PageId::InfZoneTbl,   PageId::InfJogTbl,
};

struct FunctionEntry {
  const char* Caption;
  PageId Page;
};

// Empty for an edition or a version that the list doesn't know. Edition 2 comes in one version.
std::span<const FunctionEntry> FunctionEntries(std::int16_t edition, std::string_view version);

// Whether the user may choose another function than the one with which the dialog opens.
enum class FunctionChoice { Fixed, Free };

// The entry with which the dialog opens.
struct ModeChoice {
  std::int16_t Edition;
  tarvis::Mode Mode;
  int Index;
  FunctionChoice Choice;
};

// nullptr if the edition has no such mode.
const ModeChoice* FindModeChoice(std::int16_t edition, Mode mode);

}  // namespace tarvis
