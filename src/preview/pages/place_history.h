// The places visited by jumps, as in a browser.
#pragma once

#include <optional>
#include <vector>

#include "preview/pages/page_layout.h"

namespace tarvis {

class PlaceHistory {
 public:
  // A jump leaves `from`; what was ahead is forgotten.
  void Leave(const PagePlace& from) {
    forward_.clear();
    if (back_.empty() || back_.back() != from) back_.push_back(from);
  }
  bool CanGoBack() const { return !back_.empty(); }
  bool CanGoForward() const { return !forward_.empty(); }
  // `now` is kept to come back to; empty if there is nowhere to go.
  std::optional<PagePlace> Back(const PagePlace& now) { return Walk(back_, forward_, now); }
  std::optional<PagePlace> Forward(const PagePlace& now) { return Walk(forward_, back_, now); }

 private:
  static std::optional<PagePlace> Walk(std::vector<PagePlace>& from, std::vector<PagePlace>& to,
                                       const PagePlace& now) {
    if (from.empty()) return {};
    const PagePlace place = from.back();
    from.pop_back();
    to.push_back(now);
    return place;
  }

  std::vector<PagePlace> back_;
  std::vector<PagePlace> forward_;
};

}  // namespace tarvis
