// The fonts of a code page, and of the character sets of metafiles.
#include "pictures/font_families.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QFontInfo>

#include "pictures/metafile/fonts/charset.h"
#include "pictures/metafile/fonts/outline_font.h"

namespace tarvis {
namespace {

TEST(FontFamilies, AreThoseOfTheReadersOfACodePage) {
  EXPECT_EQ(FamiliesOf(932).front(), QStringLiteral("Noto Sans CJK JP"));
  EXPECT_EQ(FamiliesOf(936).front(), QStringLiteral("Noto Sans CJK SC"));
  EXPECT_EQ(FamiliesOf(949).front(), QStringLiteral("Noto Sans CJK KR"));
  EXPECT_EQ(FamiliesOf(950).front(), QStringLiteral("Noto Sans CJK TC"));
  EXPECT_TRUE(FamiliesOf(1252).isEmpty());
}

TEST(FontFamilies, FollowTheCharacterSetOfAMetafile) {
  const auto replacement = [](std::uint8_t charset) {
    return InstalledFont({QStringLiteral("SomeFontOfAsia"), false, false, CodePageOf(charset)}, 100).family();
  };
  EXPECT_EQ(replacement(128), QStringLiteral("Noto Sans CJK JP"));
  EXPECT_EQ(replacement(134), QStringLiteral("Noto Sans CJK SC"));
  EXPECT_EQ(replacement(129), QStringLiteral("Noto Sans CJK KR"));
  EXPECT_EQ(replacement(136), QStringLiteral("Noto Sans CJK TC"));
}

TEST(FontFamilies, LeaveTheNamedFontInPlace) {
  const QFont font = InstalledFont({QStringLiteral("Liberation Serif"), false, false, 932}, 100);
  EXPECT_EQ(QFontInfo(font).family(), QStringLiteral("Liberation Serif"));
}

}  // namespace
}  // namespace tarvis
