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

// The first part of `band` that is at most `available` twips high; `band` keeps the rest. Cuts between lines
// of text and never through pictures. The first part is empty if nothing fits.
Band CutBand(Band& band, float available);

// Shrinks the pictures and ticks at the top of a band that can't be cut to `available` twips.
void ShrinkPictures(Band& band, float available);

}  // namespace tarvis
