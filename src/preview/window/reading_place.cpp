#include "preview/window/reading_place.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

// Twips from the head of the first page, as if all pages were one long sheet.
double Depth(const Document& document, int page, double top) {
  return page * PaperSizeOf(document).height() + top;
}

// Calls `see` with each contents entry and its name; entries of the same name differ in their occurrence.
template <typename See>
void ForEachEntry(const Document& document, const See& see) {
  std::vector<std::pair<QString, QString>> seen;
  QString parent;
  for (const ContentsEntry& entry : document.Contents) {
    const QString text = QString::fromStdString(entry.Text);
    if (entry.Level == 0) parent.clear();
    const std::pair<QString, QString> name{parent, text};
    const auto occurrence = static_cast<int>(std::count(seen.begin(), seen.end(), name));
    seen.push_back(name);
    see(entry, ReadingPlace{.Parent = parent, .Entry = text, .Occurrence = occurrence});
    if (entry.Level == 0) parent = text;
  }
}

}  // namespace

ReadingPlace Remember(const Document& document, const PagePlace& place) {
  const double depth = Depth(document, place.Page, place.Top);
  ReadingPlace found;
  ForEachEntry(document, [&](const ContentsEntry& entry, const ReadingPlace& name) {
    const double below = depth - Depth(document, entry.Page, entry.Top);
    constexpr double OnePixel = 150;  // at the smallest zoom: a jump to an entry may stop so far above it
    if (below < -OnePixel) return;
    found = name;
    found.Below = below;
  });
  found.Page = place;
  return found;
}

PagePlace FindAgain(const Document& document, const ReadingPlace& place) {
  std::optional<double> depth;
  ForEachEntry(document, [&](const ContentsEntry& entry, const ReadingPlace& name) {
    if (name.Parent == place.Parent && name.Entry == place.Entry && name.Occurrence == place.Occurrence)
      depth = Depth(document, entry.Page, entry.Top) + place.Below;
  });
  const int last = std::max(0, static_cast<int>(document.Pages.size()) - 1);
  if (!depth || place.Entry.isEmpty()) return {std::min(place.Page.Page, last), place.Page.Top};
  const double height = PaperSizeOf(document).height();
  const int page = std::clamp(static_cast<int>(std::floor(*depth / height)), 0, last);
  return {page, *depth - page * height};
}

}  // namespace tarvis
