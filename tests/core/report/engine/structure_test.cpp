// What the composer records of a document for those who can't see its pages: roles of bands and controls,
// tables, repetitions.
#include <gtest/gtest.h>

#include "support/sample_report.h"
#include "support/structure_text.h"

namespace tarvis {
namespace {

constexpr CellStyle Framed{.Border = true};

Field& AddCell(Section& section, const char* name, float left, const char* text = "") {
  return section.AddField(name, {left, 0, 1000, 283}, Framed, text);
}

Section& AddGuide(SampleReport& report) {
  Section& guide = report.Growing(SectionKind::GroupHeader, "guide");
  guide.Role = BandRole::HeaderRow;
  return guide;
}

Section& AddRows(SampleReport& report) {
  Section& rows = report.Growing(SectionKind::Detail, "rows");
  rows.Role = BandRole::Row;
  return rows;
}

// Paper that is long enough for all of it.
std::string StructureOnOnePage(ActiveReport& report) {
  return StructureOf(ComposeSample(report, 5000));
}

TEST(EngineStructure, TellsTitlesOfColumnsFromCellsAndKeepsEmptyOnes) {
  SampleReport report;
  Section& guide = AddGuide(report);
  AddCell(guide, "title1", 0, "No.");
  AddCell(guide, "title2", 1000, "Name");
  Section& rows = AddRows(report);
  AddCell(rows, "value1", 0, "1");
  AddCell(rows, "value2", 1000);
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.guide in table 0\n"
            "  column 'No.' column 'Name'\n"
            "sample.rows in table 0\n"
            "  cell '1' cell ''\n");
}

TEST(EngineStructure, LeavesOutWhatIsHidden) {
  SampleReport report;
  Section& rows = AddRows(report);
  AddCell(rows, "value1", 0, "1");
  Field& hidden = AddCell(rows, "value2", 1000, "2");
  AddCell(rows, "value3", 2000, "3");
  report.Rows(2, [&](int row) { hidden.Visible = row == 0; });
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.rows in table 0\n"
            "  cell '1' cell '2' cell '3'\n"
            "sample.rows in table 0\n"
            "  cell '1' cell of 2 columns '3'\n")
      << "all rows of a table are equally wide";
}

TEST(EngineStructure, KnowsRowsThatPrintAlikeByOneLayout) {
  SampleReport report;
  Section& rows = AddRows(report);
  Field& sometimes = AddCell(rows, "value1", 0, "1");
  AddCell(rows, "value2", 1000, "2");
  report.Rows(100, [&](int row) { sometimes.Visible = row % 2 == 0; });
  const Document document = ComposeSample(report, 5000);
  EXPECT_EQ(document.Structure.Bands.size(), 101U);
  EXPECT_EQ(document.Structure.Layouts.size(), 2U);
}

TEST(EngineStructure, KnowsAHeaderThatIsRepeated) {
  SampleReport report;
  Section& guide = AddGuide(report);
  guide.Repeat = true;
  AddCell(guide, "title", 0, "No.");
  Section& rows = AddRows(report);
  AddCell(rows, "value", 0, "1");
  report.Rows(3);
  EXPECT_EQ(StructureOf(ComposeSample(report, 900)),
            "sample.guide in table 0\n"
            "  column 'No.'\n"
            "sample.rows in table 0\n"
            "  cell '1'\n"
            "sample.rows in table 0\n"
            "  cell '1'\n"
            "sample.guide again in table 0\n"
            "  column 'No.'\n"
            "sample.rows in table 0\n"
            "  cell '1'\n");
}

TEST(EngineStructure, BeginsATableWithEachHeaderAndWithEachRun) {
  SampleReport outer("outer");
  SubReport& region = outer.Fixed(SectionKind::Detail, "d", 0).AddSubReport("region", {0, 0, 1000, 10});
  outer.Rows(2, [&](int) {
    auto inner = std::make_shared<SampleReport>("inner");
    AddCell(AddGuide(*inner), "title", 0, "first");
    AddCell(AddRows(*inner), "value", 0, "1");
    Section& second = inner->Growing(SectionKind::GroupFooter, "second");
    second.Role = BandRole::HeaderRow;
    AddCell(second, "title", 0, "second");
    Field& below = second.AddField("below", {0, 283, 1000, 283}, Framed, "2");
    below.Reads = {.As = PartRole::Cell, .Line = 1};
    region.object = inner;
  });
  const Document document = ComposeSample(outer, 5000);
  const std::string tables =
      "inner.guide in table 0\n"
      "  column 'first'\n"
      "inner.rows in table 0\n"
      "  cell '1'\n"
      "inner.second in table 1\n"
      "  column 'second'\n"
      "  cell '2'\n";
  std::string again = tables;
  again.replace(again.find("table 0"), 7, "table 2");
  again.replace(again.find("table 0"), 7, "table 2");
  again.replace(again.find("table 1"), 7, "table 3");
  EXPECT_EQ(StructureOf(document), tables + again);
  ASSERT_EQ(document.Structure.Runs.size(), 3U);
  EXPECT_EQ(document.Structure.Runs[2].Parent, 0U);
}

TEST(EngineStructure, KeepsRowsInTheTableOfTheirOwnReport) {
  SampleReport outer("outer");
  AddCell(AddGuide(outer), "title", 0, "outer");
  Section& detail = outer.Growing(SectionKind::Detail, "d");
  SubReport& region = detail.AddSubReport("region", {0, 0, 1000, 10});
  auto inner = std::make_shared<SampleReport>("inner");
  AddCell(AddGuide(*inner), "title", 0, "inner");
  region.object = inner;
  Section& footer = outer.Growing(SectionKind::GroupFooter, "foot");
  footer.Role = BandRole::Row;
  AddCell(footer, "sum", 0, "sum");
  EXPECT_EQ(StructureOnOnePage(outer),
            "outer.guide in table 0\n"
            "  column 'outer'\n"
            "inner.guide in table 1\n"
            "  column 'inner'\n"
            "outer.foot in table 0\n"
            "  cell 'sum'\n");
}

// Below a guide with three titles.
Section& AddRowsOfThreeColumns(SampleReport& report) {
  Section& guide = AddGuide(report);
  for (const char* name : {"title1", "title2", "title3"}) AddCell(guide, name, 0, name);
  return AddRows(report);
}

TEST(EngineStructure, ReadsLinesOfARowOneAfterTheOther) {
  SampleReport report;
  Section& rows = AddRowsOfThreeColumns(report);
  AddCell(rows, "meaning", 0, "deep").Reads.Line = 2;
  AddCell(rows, "number", 0, "Pn000").Reads.SpansLines = true;
  AddCell(rows, "name", 0, "Gain").Reads.Columns = 2;
  AddCell(rows, "heading", 0, "digit").Reads.Line = 1;
  AddCell(rows, "value", 0, "1").Reads.Line = 2;
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.guide in table 0\n"
            "  column 'title1' column 'title2' column 'title3'\n"
            "sample.rows in table 0\n"
            "  cell of 3 rows 'Pn000' cell of 2 columns 'Gain'\n"
            "  cell of 2 columns 'digit'\n"
            "  cell 'deep' cell '1'\n");
}

TEST(EngineStructure, WidensNoCellThatIsBesideOtherLines) {
  SampleReport report;
  Section& rows = AddRowsOfThreeColumns(report);
  AddCell(rows, "name", 0, "Gain");
  AddCell(rows, "number", 0, "Pn000").Reads.SpansLines = true;
  AddCell(rows, "meaning", 0, "deep").Reads.Line = 1;
  AddCell(rows, "value", 0, "1").Reads.Line = 1;
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.guide in table 0\n"
            "  column 'title1' column 'title2' column 'title3'\n"
            "sample.rows in table 0\n"
            "  cell of 2 columns 'Gain' cell of 2 rows 'Pn000'\n"
            "  cell 'deep' cell '1'\n");
}

TEST(EngineStructure, ReadsACellBesideLinesInTheFirstOfThem) {
  SampleReport report;
  Section& rows = AddRows(report);
  AddCell(rows, "number", 0, "Pn000").Reads.SpansLines = true;
  for (int line = 1; line < 3; ++line) {
    AddCell(rows, line == 1 ? "first" : "second", 0, "digit").Reads.Line = static_cast<std::uint8_t>(line);
    AddCell(rows, line == 1 ? "value1" : "value2", 0, "1").Reads.Line = static_cast<std::uint8_t>(line);
  }
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.rows in table 0\n"
            "  cell of 2 rows 'Pn000' cell 'digit' cell '1'\n"
            "  cell 'digit' cell '1'\n");
}

TEST(EngineStructure, CountsTheLinesOfACellFromItsOwnDown) {
  SampleReport report;
  Section& rows = AddRowsOfThreeColumns(report);
  AddCell(rows, "name", 0, "Gain").Reads.Columns = 3;
  const auto onLine = [&](const char* name, const char* text, std::uint8_t line) -> Field& {
    Field& cell = AddCell(rows, name, 0, text);
    cell.Reads.Line = line;
    return cell;
  };
  onLine("number", "Pn000", 1).Reads.SpansLines = true;
  onLine("heading", "digit", 1).Reads.Columns = 2;
  onLine("meaning", "deep", 2);
  onLine("value", "1", 2);
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.guide in table 0\n"
            "  column 'title1' column 'title2' column 'title3'\n"
            "sample.rows in table 0\n"
            "  cell of 3 columns 'Gain'\n"
            "  cell of 2 rows 'Pn000' cell of 2 columns 'digit'\n"
            "  cell 'deep' cell '1'\n");
}

TEST(EngineStructure, PutsTicksAndPicturesIntoTheirCells) {
  SampleReport report;
  Section& rows = AddRows(report);
  Field& frame = AddCell(rows, "frame", 0);
  CheckBox& box = rows.AddCheckBox("box", {0, 0, 283, 283});
  box.Reads.Within = &frame;
  AddCell(rows, "name", 1000, "Speed");
  report.Rows(2, [&](int row) { box.Value = row == 0; });
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.rows in table 0\n"
            "  cell ' [tick selected]' cell 'Speed'\n"
            "sample.rows in table 0\n"
            "  cell ' [tick not selected]' cell 'Speed'\n");
}

TEST(EngineStructure, ReadsNeitherHeadsAndFeetOfPagesNorLinesNorRoom) {
  SampleReport report;
  AddCell(report.Fixed(SectionKind::PageHeader, "head", 300), "head", 0, "head");
  Section& detail = report.Growing(SectionKind::Detail, "d");
  detail.AddShape("frame", {0, 0, 1000, 300});
  detail.AddLine("line", 0, 0, 1000, 0);
  detail.AddField("room", {0, 0, 1000, 283}, {.RoomOnly = true}, "1");
  detail.AddField("text", {0, 0, 1000, 283}, {}, "text");
  detail.AddField("title", {0, 0, 1000, 283}, {}, "title").Reads.As = PartRole::Heading;
  AddCell(report.Fixed(SectionKind::PageFooter, "foot", 300), "foot", 0, "foot");
  EXPECT_EQ(StructureOnOnePage(report),
            "sample.head\n"
            "sample.d\n"
            "  text 'text'\n"
            "  heading 'title'\n"
            "sample.foot\n");
}

TEST(EngineStructure, KeepsARowThatIsCutOneRow) {
  SampleReport report;
  Section& rows = AddRows(report);
  rows.AddField("value", {0, 0, 2000, 283}, Framed, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8");
  const Document document = ComposeSample(report, 900);
  ASSERT_GT(document.Pages.size(), 1U);
  EXPECT_EQ(StructureOf(document),
            "sample.rows in table 0\n"
            "  cell '1 / 2 / 3 / 4 / 5 / 6 / 7 / 8'\n");
}

}  // namespace
}  // namespace tarvis
