// The find bar, driven by keys.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include "preview/text/text_search.h"
#include "preview/window/finder.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

using SearchBar = WindowTest;

std::shared_ptr<const Document> Words() {
  return DocumentBuilder()
      .Page()
      .Row({"Gain", "gain margin", "again"}, 720)
      .Page()
      .Text("GAIN at the end", 1440, 5000)
      .Build();
}

TEST_F(SearchBar, CountsHitsOfTheWholeDocumentAsOneTypes) {
  Open(Words());
  SearchFor("gai");
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("1 of 4"));
  Type("x");
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("not found"));
}

TEST_F(SearchBar, F3AndShiftF3StepThroughTheHitsAndAround) {
  Open(Words());
  SearchFor("gain");
  Press(Qt::Key_F3);
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("2 of 4"));
  Press(Qt::Key_F3, Qt::ShiftModifier);
  Press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("4 of 4"));
  EXPECT_EQ(Page(), 1);
  Press(Qt::Key_Return);
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("1 of 4"));
}

TEST_F(SearchBar, CaseAndWholeWordSwitchesNarrowTheHits) {
  Open(Words());
  SearchFor("Gain");
  QTest::mouseClick(&Find<QCheckBox>("findWords"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("1 of 3"));
  QTest::mouseClick(&Find<QCheckBox>("findCase"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("1 of 1"));
}

TEST_F(SearchBar, EscClosesTheBarAndTakesTheMarksAway) {
  Open(Words());
  SearchFor("gain");
  auto& finder = Find<Finder>("finder");
  EXPECT_EQ(finder.Marks(0).size(), 3U);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Find<QWidget>("findBar").isVisible());
  EXPECT_TRUE(finder.Marks(0).empty());
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(SearchBar, F3WithoutABarOpensIt) {
  Open(Words());
  Press(Qt::Key_F3);
  EXPECT_TRUE(Find<QLineEdit>("findText").hasFocus());
}

TEST_F(SearchBar, AHitIsMarkedAtItsLetters) {
  Open(Words());
  SearchFor("margin");
  const std::vector<Highlight> marks = Find<Finder>("finder").Marks(0);
  ASSERT_EQ(marks.size(), 1U);
  EXPECT_GT(marks[0].Box.left(), 1440 + 1700 + 30 + 300);
  EXPECT_NEAR(marks[0].Box.top(), 720 + 46, 0.5);
  EXPECT_NEAR(marks[0].Box.width(), 510, 60);
}

TEST(TextSearch, APhraseIsFoundOverTheLinesOfOneCell) {
  const auto document = DocumentBuilder().Page().Lines({"Encoder Dividing", "Ratio"}, 1440, 720).Build();
  DocumentText text(*document);
  const std::vector<SearchHit> hits = Search(text, QStringLiteral("dividing ratio"), {});
  ASSERT_EQ(hits.size(), 1U);
  EXPECT_EQ(hits[0].Boxes.size(), 2U);
}

TEST(TextSearch, JapaneseIsFoundWithItsPlace) {
  const auto document = DocumentBuilder().Page().Text("速度ループゲイン", 1440, 720, 10).Build();
  DocumentText text(*document);
  const std::vector<SearchHit> hits = Search(text, QStringLiteral("ループ"), {});
  ASSERT_EQ(hits.size(), 1U);
  EXPECT_NEAR(hits[0].Boxes[0].left(), 1440 + 400, 1);
  EXPECT_NEAR(hits[0].Boxes[0].width(), 600, 1);
}

TEST(TextSearch, CharactersBeyond16BitsAreFoundWithTheirPlace) {
  const auto document = DocumentBuilder().Page().Text("𠮷𠮷 Gain", 1440, 720, 10).Build();
  DocumentText text(*document);
  const std::vector<SearchHit> hits = Search(text, QStringLiteral("𠮷"), {});
  ASSERT_EQ(hits.size(), 2U);
  EXPECT_NEAR(hits[1].Boxes[0].left(), 1440 + 200, 1);
  EXPECT_NEAR(hits[1].Boxes[0].width(), 200, 1);
  EXPECT_NEAR(Search(text, QStringLiteral("gain"), {}).at(0).Boxes[0].left(), 1440 + 400 + 55.6, 1);
}

std::size_t HitsOf(const char* wanted, const char* page, const SearchOptions& options = {}) {
  const auto document = DocumentBuilder().Page().Text(page, 1440, 720).Build();
  DocumentText text(*document);
  return Search(text, QString::fromUtf8(wanted), options).size();
}

TEST(TextSearch, AWholeWordEndsWhereALetterBeyond16BitsDoesNotGoOn) {
  const SearchOptions whole{.WholeWords = true};
  for (const char* page : {"𠮷gain", "gain𠮷", "𠮷gain𠮷"})
    EXPECT_EQ(HitsOf("gain", page, whole), 0U) << page;
  EXPECT_EQ(HitsOf("𠮷", "a𠮷", whole), 0U);
  EXPECT_EQ(HitsOf("𠮷", "𠮷a", whole), 0U);
  EXPECT_EQ(HitsOf("𠮷", "𠮷𠮷", whole), 0U);
  EXPECT_EQ(HitsOf("𠮷", "𠮷 𠮷", whole), 2U);
  EXPECT_EQ(HitsOf("gain", "😀gain😀", whole), 1U) << "a sign is no letter";
}

TEST(SearchOfScripts, FullAndHalfWidthFindEachOther) {
  EXPECT_EQ(HitsOf("pn100", "設定 ＰＮ１００"), 1U);
  EXPECT_EQ(HitsOf("パラメータ", "ﾊﾟﾗﾒｰﾀ"), 1U);
  EXPECT_EQ(HitsOf("ﾊﾟﾗﾒｰﾀ", "パラメータ"), 1U);
}

TEST(SearchOfScripts, LettersWithMarksAreFoundHoweverTheyAreWritten) {
  EXPECT_EQ(HitsOf("khuếch", "Độ khuếch đại"), 1U);
  EXPECT_EQ(HitsOf("KHU\xC3\x8A\xCC\x81"
                   "CH",
                   "Độ khuếch đại"),
            1U);
  EXPECT_EQ(HitsOf("straße", "HAUPTSTRASSE"), 1U);
}

TEST(SearchOfScripts, CaseMattersOnlyWhereItIsAskedFor) {
  EXPECT_EQ(HitsOf("ĐỘ", "Độ khuếch đại", {.CaseMatters = true}), 0U);
  EXPECT_EQ(HitsOf("Độ", "Độ khuếch đại", {.CaseMatters = true}), 1U);
}

TEST(SearchOfScripts, AHitInAHebrewLineIsMarkedAtItsPlace) {
  const auto document = DocumentBuilder().Page().Text("שלום Pn100", 1440, 720).Build();
  DocumentText text(*document);
  const std::vector<SearchHit> hits = Search(text, QStringLiteral("pn100"), {});
  ASSERT_EQ(hits.size(), 1U);
  ASSERT_EQ(hits[0].Boxes.size(), 1U);
  EXPECT_NEAR(hits[0].Boxes[0].left(), 1440, 1);
  EXPECT_LT(hits[0].Boxes[0].right(), 1440 + static_cast<double>(document->Texts[0].Advance) - 100);
}

TEST(SearchOfScripts, AHitAfterFoldedLettersIsMarkedAtItsPlace) {
  const auto document = DocumentBuilder().Page().Text("ﾊﾟﾊﾟ㎜X", 1440, 720).Build();
  DocumentText text(*document);
  const std::vector<SearchHit> hits = Search(text, QStringLiteral("x"), {});
  ASSERT_EQ(hits.size(), 1U);
  EXPECT_NEAR(hits[0].Boxes.at(0).right(), 1440 + static_cast<double>(document->Texts[0].Advance), 1);
  EXPECT_NEAR(hits[0].Boxes.at(0).width(), 0.667 * 170, 1);
}

TEST(TextSearch, TellsWhereAHitBegins) {
  const auto document = DocumentBuilder().Page().Lines({"a ﬁrst gain", "second"}, 1440, 720).Build();
  DocumentText text(*document);
  const auto begin = [&](const char* wanted) {
    const std::vector<SearchHit> hits = Search(text, QString::fromUtf8(wanted), {});
    return hits.size() == 1 ? std::pair(hits[0].Piece, hits[0].Character)
                            : std::pair(std::size_t{99}, std::size_t{99});
  };
  EXPECT_EQ(begin("gain"), std::pair(std::size_t{0}, std::size_t{7})) << "a ligature is one character";
  EXPECT_EQ(begin("second"), std::pair(std::size_t{1}, std::size_t{0}));
  EXPECT_EQ(begin(" second"), std::pair(std::size_t{1}, std::size_t{0})) << "the blank is the end of a line";
}

}  // namespace
}  // namespace tarvis
