// How text is set in its box: blanks, insets, room beside one-line boxes, baselines, what is clipped.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

constexpr float Blank = 0.278F * 170;  // twips at 8.5 points
constexpr float Letter = 0.556F * 170;

// One growing row with one field.
Document SetInField(const std::string& text, const Rect& place, const CellStyle& style = Plain) {
  SampleReport report;
  report.Growing(SectionKind::Detail, "d").AddField("text", place, style).Text = text;
  return ComposeSample(report, 20000);
}

TEST(EngineBlanks, ATabIsABlankAsWideAsItIsPainted) {
  const Document document = SetInField("a\tb", {0, 0, 2000, 283});
  EXPECT_THAT(LinesOf(document, "text"), ElementsAre("a b"));
  EXPECT_FLOAT_EQ(TextsOf(document, "text")[0].Box.Width, 2 * Letter + Blank);
}

TEST(EngineBlanks, ALoneLineFeedIsABlank) {
  EXPECT_THAT(LinesOf(SetInField("one\ntwo", {0, 0, 2000, 283}), "text"), ElementsAre("one two"));
  EXPECT_THAT(LinesOf(SetInField("one\r\ntwo", {0, 0, 2000, 283}), "text"), ElementsAre("one", "two"));
  EXPECT_THAT(LinesOf(SetInField("one\n\r\n\ntwo", {0, 0, 2000, 283}), "text"), ElementsAre("one ", " two"));
}

// The lines of a field, with the blank that is between one and the next.
std::string LinesInARow(const std::string& text, float width) {
  const Document document = SetInField(text, {0, 0, width, 283});
  std::string lines;
  for (const Item& item : TextsOf(document, "text")) {
    const TextPiece& piece = document.Texts[item.Source];
    lines += std::string(piece.Text) + (piece.BlankFollows ? "_|" : "|");
  }
  return lines;
}

TEST(EngineBlanks, ALineKnowsWhetherABlankSeparatesItFromTheNext) {
  constexpr float Narrow = 6 * Letter;
  EXPECT_EQ(LinesInARow("one   two", Narrow), "one_|two|") << "where a blank was the text was broken";
  EXPECT_EQ(LinesInARow("one\r\ntwo\r\n", 2000), "one_|two|") << "a line end separates, too";
  EXPECT_EQ(LinesInARow("one \r\ntwo", 2000), "one |two|") << "which has one already";
  EXPECT_EQ(LinesInARow("one\r\n\r\ntwo", 2000), "one_|two|") << "with an empty line between them";
  EXPECT_EQ(LinesInARow("abcdeabcde", Narrow - Letter), "abcde|abcde|") << "in the middle of a word";
  EXPECT_EQ(LinesInARow("high-speed", Narrow), "high-|speed|") << "behind a hyphen";
}

TEST(EngineBlanks, TheSameWordsMayOrMayNotBeSeparated) {
  constexpr float Narrow = 5 * Letter;
  EXPECT_EQ(LinesInARow("abcde abcdeabcde abcde", Narrow), "abcde_|abcde|abcde_|abcde|");
}

TEST(EngineBlanks, TabsWrapAndStayInTheirBox) {
  std::string comment = "x";
  for (int word = 0; word < 40; ++word) comment += "\t\tx";
  const Document document = SetInField(comment, {0, 0, 2000, 283});
  EXPECT_EQ(LinesOf(document, "text").size(), 4U);
  for (const Item& line : TextsOf(document, "text")) EXPECT_LE(line.Box.Width, 2010);
}

TEST(EngineBlanks, ARightAlignedValueWithATabEndsInItsCell) {
  constexpr CellStyle right{.Alignment = Align::Right, .Border = true};
  const Item line = TextsOf(SetInField("1\t2", {0, 0, 1134, 283}, right), "text")[0];
  EXPECT_FLOAT_EQ(line.Box.Right(), 1134 - 30);
  EXPECT_FLOAT_EQ(line.Box.Width, 2 * Letter + Blank);
}

TEST(EngineAlignment, LinesOfBothDirectionsEndAtTheRightWhereTheLayoutSaysSo) {
  constexpr CellStyle right{.Alignment = Align::Right, .Border = true};
  const Document document = SetInField("ab\r\nמהירות המנוע 300\r\nقيمة\r\nที่", {100, 0, 3000, 283}, right);
  const std::vector<Item> lines = TextsOf(document, "text");
  ASSERT_EQ(lines.size(), 4U);
  for (const Item& line : lines) EXPECT_FLOAT_EQ(line.Box.Right(), 3100 - 30);
  EXPECT_EQ(document.Texts[lines[1].Source].Flow, TextFlow::RightToLeft);
}

TEST(EngineAlignment, LinesThatRunToTheLeftStayAtTheLeftWhereTheLayoutSaysNothing) {
  constexpr CellStyle cell{.Border = true};
  const Document document = SetInField("ab\r\nמהירות המנוע 300\r\nقيمة", {100, 0, 3000, 283}, cell);
  const std::vector<Item> lines = TextsOf(document, "text");
  ASSERT_EQ(lines.size(), 3U);
  for (const Item& line : lines) EXPECT_FLOAT_EQ(line.Box.Left, 130);
}

TEST(EngineBlanks, OneLineBoxesTakeThemAsBlanksToo) {
  SampleReport report;
  report.Fixed(SectionKind::Detail, "d", 300).AddLabel("text", {0, 0, 2000, 283}, "a\nb\tc\r\nd");
  EXPECT_THAT(LinesOf(ComposeSample(report, 1000), "text"), ElementsAre("a b c d"));
}

TEST(EngineLines, EndAfterWholeCharactersAlsoAfterThoseOfFourBytes) {
  EXPECT_THAT(LinesOf(SetInField("𠮷𠮷", {0, 0, 10, 283}), "text"), ElementsAre("𠮷", "𠮷"));
  EXPECT_FLOAT_EQ(TextsOf(SetInField("𠮷𠮷", {0, 0, 2000, 283}), "text")[0].Box.Width, 2 * 170);
}

TEST(EngineInset, IsThatOfTheWidestLineForAllLinesOfACell) {
  constexpr CellStyle left{.Border = true};
  constexpr CellStyle right{.Alignment = Align::Right, .Border = true};
  // Five digits leave 10 twips of 482: the second line is set in by no more.
  const auto lefts = TextsOf(SetInField("12345\r\n1", {100, 0, 5 * Letter + 10, 283}, left), "text");
  EXPECT_NEAR(lefts[0].Box.Left, 110, 0.01);
  EXPECT_NEAR(lefts[1].Box.Left, 110, 0.01);
  const auto rights = TextsOf(SetInField("12345\r\n1", {100, 0, 5 * Letter + 10, 283}, right), "text");
  EXPECT_NEAR(rights[0].Box.Right(), 100 + 5 * Letter, 0.01);
  EXPECT_NEAR(rights[1].Box.Right(), 100 + 5 * Letter, 0.01);
}

TEST(EngineInset, IsFullWhereTheWidestLineLeavesRoom) {
  constexpr CellStyle left{.Border = true};
  const auto lines = TextsOf(SetInField("12345\r\n1", {100, 0, 5 * Letter + 30, 283}, left), "text");
  EXPECT_NEAR(lines[0].Box.Left, 130, 0.01);
  EXPECT_NEAR(lines[1].Box.Left, 130, 0.01);
}

// The lines of a cell whose height is set to `height` after it has grown.
std::vector<Item> LinesInCellOf(float height) {
  SampleReport report;
  Section& detail = report.Growing(SectionKind::Detail, "d");
  Field& text = detail.AddField("text", {0, 0, 2000, 100}, Plain);
  text.Text = "a\r\nb\r\nc";
  detail.BeforePrint = [&] { text.Height = height; };
  return TextsOf(ComposeSample(report, 5000), "text");
}

TEST(EngineClip, TextTallerThanItsBoxEndsAtTheBottomOfTheBox) {
  const auto lines = LinesInCellOf(284);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].Box.Height, 190);
  EXPECT_EQ(lines[1].Box.Top, 190);
  EXPECT_EQ(lines[1].Box.Height, 94);
}

TEST(EngineClip, TenTwipsOfHeightAreTolerated) {
  EXPECT_EQ(LinesInCellOf(560).back().Box.Height, 190);
  EXPECT_EQ(LinesInCellOf(559).back().Box.Height, 179);
  EXPECT_EQ(LinesInCellOf(391).size(), 3U);
  EXPECT_EQ(LinesInCellOf(390).size(), 2U);
}

// A label of twenty letters, 1890 twips wide, in a box of 1000, with what `add` puts beside it.
struct OneLine {
  explicit OneLine(const std::function<void(Section&)>& add = {}, Align alignment = Align::Left) {
    Section& detail = Report.Fixed(SectionKind::Detail, "d", 300);
    if (add && alignment == Align::Right) add(detail);
    detail.AddLabel("text", {2000, 0, 1000, 283}, std::string(20, 'a').c_str(), {.Alignment = alignment});
    if (add && alignment != Align::Right) add(detail);
    Placed = TextsOf(Compose(Report, {5000, 1000, 0, 0, 0, 0}, ArialMeasurer()), "text")[0].Box;
  }
  SampleReport Report;
  Rect Placed;
};

TEST(EngineOneLine, TextWiderThanItsBoxRunsOnIntoTheFreeRoomBesideIt) {
  const OneLine line;
  EXPECT_EQ(line.Placed.Left, 2000);
  EXPECT_NEAR(line.Placed.Width, 20 * Letter, 0.1);
}

TEST(EngineOneLine, RunsOnUpToTheNextControlOnlyAndIsThenCondensed) {
  const auto field = [](Section& detail) { detail.AddField("next", {3500, 100, 500, 142}, Plain, "x"); };
  EXPECT_EQ(OneLine(field).Placed, (Rect{2000, 46, 1500 - 60, 190}));
  const auto rule = [](Section& detail) { detail.AddLine("next", 3400, 0, 3400, 400); };
  EXPECT_EQ(OneLine(rule).Placed.Width, 1400 - 60);
  const auto frame = [](Section& detail) { detail.AddShape("frame", {1900, 0, 1600, 300}); };
  EXPECT_EQ(OneLine(frame).Placed.Width, 1500 - 60);
  const auto touching = [](Section& detail) { detail.AddField("next", {3000, 0, 500, 283}, Plain, "x"); };
  EXPECT_EQ(OneLine(touching).Placed.Width, 1000);
  const auto ending = [](Section& detail) { detail.AddField("before", {1500, 0, 500, 283}, Plain, "x"); };
  EXPECT_NEAR(OneLine(ending).Placed.Width, 20 * Letter, 0.1);
}

TEST(EngineOneLine, RunsOnOverWhatPrintsNothing) {
  const auto empty = [](Section& detail) { detail.AddField("next", {3500, 0, 500, 283}, Plain); };
  EXPECT_NEAR(OneLine(empty).Placed.Width, 20 * Letter, 0.1);
  const auto hidden = [](Section& detail) { detail.AddShape("next", {3500, 0, 500, 283}).Visible = false; };
  EXPECT_NEAR(OneLine(hidden).Placed.Width, 20 * Letter, 0.1);
  const auto below = [](Section& detail) { detail.AddField("next", {3500, 250, 500, 50}, Plain, "x"); };
  EXPECT_NEAR(OneLine(below).Placed.Width, 20 * Letter, 0.1);
}

TEST(EngineOneLine, RightAlignedTextRunsOnToTheLeft) {
  EXPECT_NEAR(OneLine({}, Align::Right).Placed.Right(), 3000, 0.1);
  EXPECT_NEAR(OneLine({}, Align::Right).Placed.Width, 20 * Letter, 0.1);
  // Up to where the text before it ends, also if that has left its own box: 15 letters from 100.
  const auto before = [](Section& detail) {
    detail.AddLabel("before", {100, 0, 1000, 283}, std::string(15, 'b').c_str(), Plain);
  };
  const Rect line = OneLine(before, Align::Right).Placed;
  EXPECT_NEAR(line.Left, 100 + 15 * Letter + 60, 0.1);
  EXPECT_NEAR(line.Right(), 3000, 0.1);
  const auto touching = [](Section& detail) { detail.AddField("next", {3000, 0, 500, 283}, Plain, "x"); };
  EXPECT_NEAR(OneLine(touching, Align::Right).Placed.Width, 20 * Letter, 0.1);
}

TEST(EngineOneLine, CentredTextIsCondensedToItsBox) {
  EXPECT_EQ(OneLine({}, Align::Centre).Placed, (Rect{2000, 46, 1000, 190}));
}

TEST(EngineBaseline, CanBeThatOfTheTextBeside) {
  SampleReport report;
  Section& detail = report.Fixed(SectionKind::Detail, "d", 500);
  Label& caption = detail.AddLabel("caption", {0, 100, 2000, 425}, "SUBJECT:", {.Size = 14, .Bold = true});
  caption.SharesBaselineOf = &detail.AddField("text", {2000, 100, 2000, 283}, {.Size = 12}, "x");
  const Document document = ComposeSample(report, 1000);
  const float text = TextsOf(document, "text")[0].Box.Top;
  EXPECT_FLOAT_EQ(text, 107.5F);
  // Baselines are 0.905 em below the top of a line.
  EXPECT_NEAR(TextsOf(document, "caption")[0].Box.Top + 0.905F * 280, text + 0.905F * 240, 0.01);
}

TEST(EnginePaper, ABoxThatReachesPastThePaperWrapsAtItsEdge) {
  constexpr CellStyle within{.Size = 8.5F, .WithinPaper = true};
  SampleReport report;
  report.Fixed(SectionKind::Detail, "d", 2000)
      .AddField("text", {500, 0, 2000, 1500}, within, std::string(40, 'a').c_str());
  PageSetup setup = PaperOf(3000);
  setup.Width = 2000;
  setup.Left = 500;
  const auto lines = TextsOf(Compose(report, setup, ArialMeasurer()), "text");
  EXPECT_EQ(lines.size(), 4U);
  for (const Item& line : lines) EXPECT_LE(line.Box.Right(), 2000);
}

}  // namespace
}  // namespace tarvis
