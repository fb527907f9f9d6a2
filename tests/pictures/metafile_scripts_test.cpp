// Text of metafiles in scripts that must be shaped: joined, in the order in which it is read.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "metafile_writer.h"

namespace tarvis {
namespace {

constexpr std::uint32_t ToTheLeft = 0x80, AsItIs = 0x1000;
constexpr QSize Large(400, 400);

EmfWriter Emf(std::uint32_t charset = 0) {
  EmfWriter emf;
  emf.Set(18, 1).Font(-20, "DejaVu Sans", 0, charset);
  return emf;
}

// How many pixels differ clearly.
int Difference(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x)
      count += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 64 ? 1 : 0;
  return count;
}

QImage Shown(const std::u16string& text, std::uint32_t options = 0) {
  return Emf().Units(5, 20, text, {}, options).Show(Large);
}

TEST(MetafileScripts, HebrewRunsToTheLeft) {
  const QImage shown = Shown(u"\u05D0\u05D1\u05D2");
  EXPECT_LT(Difference(shown, Shown(u"\u05D2\u05D1\u05D0", AsItIs)), 20);
  EXPECT_GT(Difference(shown, Shown(u"\u05D0\u05D1\u05D2", AsItIs)), 100);
}

TEST(MetafileScripts, ArabicLettersJoin) {
  const QImage shown = Shown(u"\u0633\u0644\u0627\u0645");
  EXPECT_LT(Difference(shown, Shown(u"\uFEE1\uFEFC\uFEB3", AsItIs)), 20);
  EXPECT_GT(Difference(shown, Shown(u"\u0645\u0627\u0644\u0633", AsItIs)), 100);
}

TEST(MetafileScripts, ARecordSaysInWhichDirectionItRuns) {
  const QImage toTheLeft = Shown(u"\u05D0.", ToTheLeft);
  EXPECT_LT(Difference(toTheLeft, Shown(u".\u05D0", AsItIs)), 20);
  EXPECT_LT(Difference(Shown(u"\u05D0."), Shown(u"\u05D0.", AsItIs)), 20);
  EXPECT_LT(Difference(Emf().Set(22, 0x100).Units(5, 20, u"\u05D0.").Show(Large), toTheLeft), 20);
}

std::vector<float> EdgesOf(const EmfWriter& emf) {
  std::vector<float> edges;
  const auto picture = Play(emf.Bytes());
  for (const PictureText::Place& edge : picture->Texts().at(0).Edges)
    edges.push_back(std::round(edge.X * 1000) / 10);
  return edges;
}

using Edges = std::vector<float>;

TEST(MetafileScripts, WidthsOfARecordBelongToItsCharactersWhereverTheyGo) {
  EXPECT_EQ(EdgesOf(Emf().Units(5, 20, u"\u05D0\u05D1\u05D2", {20, 10, 30})), (Edges{65, 45, 45, 35, 35, 5}));
  EXPECT_EQ(EdgesOf(Emf().Units(5, 20, u"a\u05D0\u05D1b", {10, 20, 10, 5})),
            (Edges{5, 15, 45, 25, 25, 15, 45, 50}));
}

TEST(MetafileScripts, LettersThatBecomeOneSignShareTheirWidths) {
  const EmfWriter emf = Emf().Units(5, 20, u"\u0644\u0627", {20, 10});
  EXPECT_EQ(EdgesOf(emf), (Edges{35, 20, 20, 5}));
  EXPECT_LT(Difference(emf.Show(Large), Shown(u"\uFEFB", AsItIs)), 20);
}

TEST(MetafileScripts, ThaiMarksStandOnTheirLettersAndTakeNoRoom) {
  const auto wide = [](const std::u16string& text) {
    const std::vector<float> edges = EdgesOf(Emf(222).Units(5, 20, text));
    return *std::max_element(edges.begin(), edges.end());
  };
  EXPECT_FLOAT_EQ(wide(u"\u0E17\u0E35\u0E48"), wide(u"\u0E17"));
  // Both halves of the vowel show: the ring over the letter, and the rest after it.
  EXPECT_GT(wide(u"\u0E01\u0E33"), wide(u"\u0E01") + 5);
  const auto ink = [](const std::u16string& text) {
    return InkedPixels(Emf(222).Units(5, 20, text).Show(Large));
  };
  EXPECT_GT(ink(u"\u0E01\u0E33"), ink(u"\u0E01\u0E32") + 20);
}

TEST(MetafileScripts, KeepTheirTextInTheOrderOfReading) {
  const auto picture = Play(Emf().Units(5, 20, u"Pn \u05E9\u05DC\u05D5\u05DD").Bytes());
  EXPECT_EQ(picture->Texts().at(0).Text, "Pn \u05E9\u05DC\u05D5\u05DD");
}

TEST(MetafileScripts, AreShapedInRecordsOfBytesByTheirCharset) {
  const auto shown = [](std::uint32_t record, const ByteWriter& payload) {
    WmfWriter wmf;
    return wmf.Window(0, 0, 100, 100).Font(-20, "DejaVu Sans", 177).Add(record, payload).Show(Large);
  };
  const QImage text = shown(0x0521, ByteWriter().U16(3).Text("\xE0\xE1\xE2").U8(0).I16(20).I16(5));
  const QImage reversed =
      shown(0x0A32, ByteWriter().I16(20).I16(5).U16(3).U16(AsItIs).Text("\xE2\xE1\xE0").U8(0));
  EXPECT_LT(Difference(text, reversed), 20);
  EXPECT_GT(InkedPixels(text), 100);
}

// Chinese and Japanese write this character in different forms.
TEST(MetafileScripts, TakeCharactersThatTheNamedFontDoesNotHaveFromFontsOfTheCharset) {
  const auto shown = [](const char* face, std::uint32_t charset) {
    EmfWriter emf;
    emf.Set(18, 1).Font(-60, face, 0, charset);
    return emf.Units(20, 10, u"\u9AA8").Show(Large);
  };
  EXPECT_EQ(shown("Arial", 136), shown("Noto Sans CJK TC", 136));
  EXPECT_EQ(shown("Arial", 134), shown("Noto Sans CJK SC", 134));
  EXPECT_NE(shown("Arial", 134), shown("Arial", 128));
}

}  // namespace
}  // namespace tarvis
