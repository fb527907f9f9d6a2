// Collects contents entries while bands are composed and places them once the bands have landed.
#pragma once

#include <string>
#include <vector>

#include "report/engine/document.h"

namespace tarvis {

class ContentsTree {
 public:
  // A place still to be known; returns its number.
  int NewLanding();
  // A band with this landing was placed. A band of height 0 takes the place of the next one with a height.
  void Land(int landing, int page, float top, float height);
  // A band without entries was placed; bands of height 0 before it take its place.
  void Pass(int page, float top, float height);
  // The band will never be placed: its entries are dropped.
  void Drop(int landing);

  void Add(const std::string& path, int landing);

  // Two levels in order of first use; a parent leads where its first child leads.
  std::vector<ContentsEntry> Finish();

 private:
  struct Place {
    bool Known = false;
    bool Dropped = false;
    int Page = 0;
    float Top = 0;
    float Height = 0;
  };
  struct Added {
    std::string Path;
    int Landing;
  };

  Place& PlaceOf(int landing);

  std::vector<Place> landings_;
  std::vector<int> waiting_;  // landings of height 0
  std::vector<Added> added_;
  Place last_;
};

}  // namespace tarvis
