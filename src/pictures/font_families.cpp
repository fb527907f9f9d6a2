#include "pictures/font_families.h"

#include <algorithm>
#include <array>

namespace tarvis {
namespace {

// The first family is that of Debian's packages, then come those that Windows brings.
struct CodePageFonts {
  int CodePage;
  std::array<const char*, 4> Families;
};
constexpr CodePageFonts Table[] = {
    {874, {"Loma", "Noto Sans Thai", "Leelawadee UI", "Tahoma"}},
    {932, {"Noto Sans CJK JP", "Meiryo", "Yu Gothic", "MS Gothic"}},
    {936, {"Noto Sans CJK SC", "Microsoft YaHei", "SimHei", "SimSun"}},
    {949, {"Noto Sans CJK KR", "Malgun Gothic", "Gulim", "Dotum"}},
    {950, {"Noto Sans CJK TC", "Microsoft JhengHei", "PMingLiU", "MingLiU"}},
    {1255, {"DejaVu Sans", "Noto Sans Hebrew", "Segoe UI", "Tahoma"}},
    {1256, {"DejaVu Sans", "Noto Sans Arabic", "Segoe UI", "Tahoma"}},
};

}  // namespace

QStringList FamiliesOf(int codePage) {
  QStringList families;
  const auto* const row = std::ranges::find(Table, codePage, &CodePageFonts::CodePage);
  if (row == std::end(Table)) return families;
  for (const char* family : row->Families) families.append(QString::fromLatin1(family));
  return families;
}

}  // namespace tarvis
