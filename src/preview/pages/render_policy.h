// Which parts of pages are rendered when, which pictures are kept, and which are shown meanwhile: pure
// functions.
#pragma once

#include <compare>
#include <cstdint>
#include <span>
#include <vector>

namespace tarvis {

// A strip of a page at a scale. Pages are cut into strips of full width once a whole page would be a large
// picture.
struct Strip {
  int Page = 0;
  int Index = 0;
  int Width = 0;  // of the whole page in device pixels, which defines the scale
  auto operator<=>(const Strip&) const = default;
};

// How a page `width` by `height` device pixels large is cut.
struct StripCut {
  int Height = 1;  // of each strip but the last
  int Count = 1;
};
StripCut CutIntoStrips(int width, int height);

// What shows of a page: from `Top` to `Bottom`, in device pixels from the top of the page. Both may lie
// outside the page.
struct ShownPart {
  int Page = 0;
  int Top = 0;
  int Bottom = 0;
};

// The strips of a page `width` by `height` device pixels large of which `part` shows something.
std::vector<Strip> StripsOf(const ShownPart& part, int width, int height);

// What is worth rendering, most urgent first: what is shown, then a strip in each direction: first the one
// that scrolling on will show, then the one before.
std::vector<Strip> WantedStrips(std::span<const ShownPart> shown, int width, int height, int pageCount);

struct CachedStrip {
  Strip Key;
  std::int64_t Bytes = 0;
  std::int64_t LastUse = 0;  // grows with each use
};

// Which strips must be dropped so that the rest stays within `budget` bytes: the longest unused first, never
// one of `wanted`.
std::vector<Strip> Evict(std::vector<CachedStrip> cached, std::span<const Strip> wanted, std::int64_t budget);

// The page width among `widths` that is the best substitute for `wanted`: the nearest larger one, else the
// largest; 0 if there is none.
int SubstituteWidth(std::span<const int> widths, int wanted);

}  // namespace tarvis
