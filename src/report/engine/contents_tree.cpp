#include "report/engine/contents_tree.h"

#include <algorithm>

namespace tarvis {
namespace {

struct Root {
  ContentsEntry Entry;
  bool IsParent = false;
  std::vector<ContentsEntry> Children;
};

}  // namespace

int ContentsTree::NewLanding() {
  landings_.emplace_back();
  return static_cast<int>(landings_.size()) - 1;
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
    const bool dropped = landings_[static_cast<std::size_t>(landing)].Dropped;
    landings_[static_cast<std::size_t>(landing)] = last_;
    landings_[static_cast<std::size_t>(landing)].Dropped = dropped;
  }
  waiting_.clear();
}

void ContentsTree::Drop(int landing) {
  landings_[static_cast<std::size_t>(landing)].Dropped = true;
}

void ContentsTree::Add(const std::string& path, int landing) {
  added_.push_back({path, landing});
}

std::vector<ContentsEntry> ContentsTree::Finish() {
  for (const int landing : waiting_) landings_[static_cast<std::size_t>(landing)] = last_;
  waiting_.clear();
  std::vector<Root> roots;
  for (const Added& added : added_) {
    const Place& place = landings_[static_cast<std::size_t>(added.Landing)];
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
