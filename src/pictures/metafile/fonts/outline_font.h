// The font that a record names, and the installed one that replaces it.
#pragma once

#include <QFont>
#include <QString>
#include <tuple>

namespace tarvis {

struct OutlineFont {
  QString Family;
  bool Bold = false;
  bool Italic = false;
  int CodePage = 0;  // of the character set, by which replacements are chosen; 0 if it has none

  bool operator==(const OutlineFont&) const = default;
  bool operator<(const OutlineFont& other) const {
    return std::tie(Family, Bold, Italic, CodePage) <
           std::tie(other.Family, other.Bold, other.Italic, other.CodePage);
  }
};

// Whether two families were designed with the same widths, and so give the same numbers to their first
// glyphs.
bool AreMetricTwins(const QString& family, const QString& other);

// With `emPixels` to the em, without hints and kerning.
QFont InstalledFont(const OutlineFont& font, int emPixels);

}  // namespace tarvis
