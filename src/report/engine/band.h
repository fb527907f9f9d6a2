// A finished band: what one printing of one section came to, before its place on a page is known.
#pragma once

#include <vector>

#include "report/engine/document.h"
#include "report/engine/section.h"

namespace tarvis {

struct OpenGroup;

struct Band {
  bool IsHeader = false;
  float Height = 0;
  std::vector<Item> Items;     // relative to the band's top and the paper's left edge
  int Landing = -1;            // where its contents entries land; -1 without entries
  OpenGroup* Group = nullptr;  // innermost group whose headers repeat above this band
};

}  // namespace tarvis
