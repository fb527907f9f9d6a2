// How text is set in its box.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

constexpr CellStyle Plain{.Size = 8.5F};
constexpr float Blank = 0.278F * 170;  // twips at 8.5 points
constexpr float Letter = 0.556F * 170;

std::vector<Item> TextsOf(const Document& document, const std::string& control) {
  std::vector<Item> items;
  for (const Item& item : document.Items) {
    if (item.Kind == ItemKind::Text && document.Names[item.Control] == control) items.push_back(item);
  }
  return items;
}

std::vector<std::string> LinesOf(const Document& document, const std::string& control) {
  std::vector<std::string> lines;
  for (const Item& item : TextsOf(document, control)) lines.emplace_back(document.Texts[item.Source].Text);
  return lines;
}

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

TEST(EngineBlanks, OneLineBoxesTakeThemAsBlanksToo) {
  SampleReport report;
  report.Fixed(SectionKind::Detail, "d", 300).AddLabel("text", {0, 0, 2000, 283}, "a\nb\tc\r\nd");
  EXPECT_THAT(LinesOf(ComposeSample(report, 1000), "text"), ElementsAre("a b c d"));
}

}  // namespace
}  // namespace tarvis
