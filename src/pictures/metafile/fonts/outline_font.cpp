#include "pictures/metafile/fonts/outline_font.h"

#include <QFontDatabase>
#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "pictures/font_families.h"

namespace tarvis {
namespace {

// Families whose usual substitutes the font system may not know.
QString KnownFamily(const QString& family) {
  static const std::map<QString, QString> substitutes = {{"helv", "Arial"},
                                                         {"ms sans serif", "Arial"},
                                                         {"ms shell dlg", "Arial"},
                                                         {"system", "Arial"},
                                                         {"helvetica", "Arial"},
                                                         {"tms rmn", "Times New Roman"},
                                                         {"times", "Times New Roman"},
                                                         {"ms serif", "Times New Roman"},
                                                         {"courier", "Courier New"},
                                                         {"fixedsys", "Courier New"},
                                                         {"terminal", "Courier New"},
                                                         {"symbol", "Times New Roman"},
                                                         {"wingdings", "DejaVu Sans"},
                                                         {"wingdings 2", "DejaVu Sans"},
                                                         {"webdings", "DejaVu Sans"},
                                                         {"monotype sorts", "DejaVu Sans"}};
  const auto found = substitutes.find(family.toLower());
  return family.isEmpty() ? QString("Arial") : found == substitutes.end() ? family : found->second;
}

// A family that is not installed is replaced by one that has the characters of its character set. The
// families of Latin letters have replacements of their own.
QString Replacement(const QString& family, int codePage) {
  constexpr std::array latin = {"arial", "times new roman", "courier new"};
  const QString name = family.toLower();
  if (QFontDatabase::hasFamily(family) ||
      std::ranges::any_of(latin, [&](const char* known) { return name == QLatin1String(known); }))
    return family;
  for (const QString& other : FamiliesOf(codePage)) {
    if (QFontDatabase::hasFamily(other)) return other;
  }
  return family;
}

}  // namespace

bool AreMetricTwins(const QString& family, const QString& other) {
  constexpr std::pair<const char*, const char*> twins[] = {{"arial", "liberation sans"},
                                                           {"times new roman", "liberation serif"},
                                                           {"courier new", "liberation mono"}};
  const QString a = family.toLower(), b = other.toLower();
  return std::ranges::any_of(twins, [&](const auto& pair) {
    return (a == pair.first && b == pair.second) || (a == pair.second && b == pair.first);
  });
}

QFont InstalledFont(const OutlineFont& font, int emPixels) {
  // A name after @ is that of the same font for upright text.
  const QString named = KnownFamily(font.Family.startsWith('@') ? font.Family.mid(1) : font.Family);
  QFont installed;
  installed.setFamilies(QStringList(Replacement(named, font.CodePage)) + FamiliesOf(font.CodePage));
  installed.setBold(font.Bold);
  installed.setItalic(font.Italic);
  installed.setPixelSize(emPixels);
  installed.setHintingPreference(QFont::PreferNoHinting);
  installed.setKerning(false);
  return installed;
}

}  // namespace tarvis
