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
    ahead_.clear();
    if (behind_.empty() || behind_.back() != from) behind_.push_back(from);
  }
  bool CanGoBack() const { return !behind_.empty(); }
  bool CanGoForward() const { return !ahead_.empty(); }
  // `now` is kept to come back to; empty if there is nowhere to go.
  std::optional<PagePlace> Back(const PagePlace& now) { return Walk(behind_, ahead_, now); }
  std::optional<PagePlace> Forward(const PagePlace& now) { return Walk(ahead_, behind_, now); }

 private:
  static std::optional<PagePlace> Walk(std::vector<PagePlace>& from, std::vector<PagePlace>& to,
                                       const PagePlace& now) {
    if (from.empty()) return {};
    const PagePlace place = from.back();
    from.pop_back();
    to.push_back(now);
    return place;
  }

  std::vector<PagePlace> behind_;
  std::vector<PagePlace> ahead_;
};

}  // namespace tarvis
