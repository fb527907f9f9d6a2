#include "report/engine/contents_tree.h"

#include <algorithm>
#include <cassert>

#include "text/normal_form.h"

namespace tarvis {
namespace {

struct Root {
  ContentsEntry Entry;
  bool IsParent;
  std::vector<ContentsEntry> Children;
};

}  // namespace

int ContentsTree::NewLanding() {
  landings_.emplace_back();
  return static_cast<int>(landings_.size()) - 1;
}

ContentsTree::Place& ContentsTree::PlaceOf(int landing) {
  assert(landing >= 0 && landing < static_cast<int>(landings_.size()));
  return landings_[static_cast<std::size_t>(landing)];
}

void ContentsTree::Land(int landing, int page, float top, float height) {
  if (height <= 0) {
    waiting_.push_back(landing);
    last_ = {true, false, page, top, 0};
    return;
  }
  waiting_.push_back(landing);
  Pass(page, top, height);
}

void ContentsTree::Pass(int page, float top, float height) {
  last_ = {true, false, page, top, height};
  if (height <= 0) return;
  for (const int landing : waiting_) {
    Place& place = PlaceOf(landing);
    const bool dropped = place.Dropped;
    place = last_;
    place.Dropped = dropped;
  }
  waiting_.clear();
}

void ContentsTree::Drop(int landing) {
  PlaceOf(landing).Dropped = true;
}

void ContentsTree::Add(const std::string& path, int landing) {
  added_.push_back({ToComposed(path).value_or(path), landing});
}

std::vector<ContentsEntry> ContentsTree::Finish() {
  for (const int landing : waiting_) PlaceOf(landing) = last_;
  waiting_.clear();
  std::vector<Root> roots;
  for (const Added& added : added_) {
    const Place& place = PlaceOf(added.Landing);
    if (place.Dropped) continue;
    const std::size_t slash = added.Path.find('\\');
    ContentsEntry entry{added.Path.substr(0, slash), 0, place.Page, place.Top, place.Height};
    if (slash == std::string::npos) {
      roots.push_back({entry, false, {}});
      continue;
    }
    auto parent = std::find_if(roots.begin(), roots.end(), [&](const Root& root) {
      return root.IsParent && root.Entry.Text == entry.Text;
    });
    if (parent == roots.end()) parent = roots.insert(roots.end(), {entry, true, {}});
    entry.Text = added.Path.substr(slash + 1);
    entry.Level = 1;
    parent->Children.push_back(entry);
  }
  std::vector<ContentsEntry> contents;
  for (Root& root : roots) {
    contents.push_back(root.Entry);
    contents.insert(contents.end(), root.Children.begin(), root.Children.end());
  }
  return contents;
}

}  // namespace tarvis
