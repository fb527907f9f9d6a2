#include "preview/pages/render_policy.h"

#include <algorithm>

namespace tarvis {
namespace {

constexpr std::int64_t LargestPicture = 1'000'000;  // pixels; a page at full size is not cut

void AddOnce(std::vector<Strip>& strips, const Strip& strip) {
  if (std::find(strips.begin(), strips.end(), strip) == strips.end()) strips.push_back(strip);
}

}  // namespace

StripCut CutIntoStrips(int width, int height) {
  if (std::int64_t{width} * height <= LargestPicture) return {std::max(1, height), 1};
  const int stripHeight = static_cast<int>(std::max<std::int64_t>(64, LargestPicture / std::max(1, width)));
  return {stripHeight, (height + stripHeight - 1) / stripHeight};
}

std::vector<Strip> StripsOf(const ShownPart& part, int width, int height) {
  const StripCut cut = CutIntoStrips(width, height);
  const int first = std::clamp(part.Top / cut.Height, 0, cut.Count - 1);
  const int last = std::clamp(part.Bottom / cut.Height, 0, cut.Count - 1);
  std::vector<Strip> strips;
  for (int index = first; index <= last; ++index) strips.push_back({part.Page, index, width});
  return strips;
}

std::vector<Strip> WantedStrips(std::span<const ShownPart> shown, int width, int height, int pageCount) {
  std::vector<Strip> wanted;
  if (shown.empty()) return wanted;
  const StripCut cut = CutIntoStrips(width, height);
  for (const ShownPart& part : shown) {
    for (const Strip& strip : StripsOf(part, width, height)) wanted.push_back(strip);
  }
  const Strip last = wanted.back();
  const Strip first = wanted.front();
  if (last.Index + 1 < cut.Count) {
    AddOnce(wanted, {last.Page, last.Index + 1, width});
  } else if (last.Page + 1 < pageCount) {
    AddOnce(wanted, {last.Page + 1, 0, width});
  }
  if (first.Index > 0) {
    AddOnce(wanted, {first.Page, first.Index - 1, width});
  } else if (first.Page > 0) {
    AddOnce(wanted, {first.Page - 1, cut.Count - 1, width});
  }
  return wanted;
}

std::vector<Strip> Evict(std::vector<CachedStrip> cached, std::span<const Strip> wanted,
                         std::int64_t budget) {
  std::int64_t total = 0;
  for (const CachedStrip& strip : cached) total += strip.Bytes;
  std::sort(cached.begin(), cached.end(),
            [](const CachedStrip& a, const CachedStrip& b) { return a.LastUse < b.LastUse; });
  std::vector<Strip> evicted;
  for (const CachedStrip& strip : cached) {
    if (total <= budget) break;
    if (std::find(wanted.begin(), wanted.end(), strip.Key) != wanted.end()) continue;
    evicted.push_back(strip.Key);
    total -= strip.Bytes;
  }
  return evicted;
}

int SubstituteWidth(std::span<const int> widths, int wanted) {
  int best = 0;
  for (const int width : widths) {
    const bool better = best < wanted ? width > best : width >= wanted && width < best;
    if (better) best = width;
  }
  return best;
}

}  // namespace tarvis
