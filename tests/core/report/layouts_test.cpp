// Each report's sections and controls as its layout has them, before any event has changed them: one table
// a report in tests/core/report/layouts. The tables are written by hand and never updated from what the
// reports say.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "report/rptBaseHeader.h"
#include "report/rptCover.h"
#include "support/golden.h"
#include "support/report_run.h"
#include "support/source_folder.h"

namespace tarvis {
namespace {

std::string Number(float value) {
  std::ostringstream text;
  text << value;
  return text.str();
}

std::string HexColor(Color color) {
  std::ostringstream text;
  text << std::uppercase << std::hex;
  text.width(6);
  text.fill('0');
  text << color;
  return text.str();
}

std::string Place(const Control& control) {
  return " " + std::string(control.Name) + " " + Number(control.Left) + "," + Number(control.Top) + " " +
         Number(control.Width) + "x" + Number(control.Height) + (control.Visible ? "" : " hidden");
}

std::string Quoted(const std::string& text) {
  std::string quoted = " \"";
  for (const char character : text) {
    quoted += character == '\r' ? "\\r" : character == '\n' ? "\\n" : std::string(1, character);
  }
  return quoted + "\"";
}

std::string Look(const TextControl& text) {
  static constexpr std::array Alignments{" left", " centre", " right"};
  const CellStyle& style = text.Style;
  std::string look = " " + Number(style.Size) + (style.Bold ? " bold" : "");
  look += Alignments[static_cast<std::size_t>(style.Alignment)];
  if (style.Border) look += " border";
  if (style.Filled) look += " fill " + HexColor(style.Fill);
  if (style.RoomOnly) look += " room-only";
  return look;
}

std::string SummaryOf(const Field& field) {
  static constexpr std::array Summaries{"", " page-number", " page-count"};
  return Summaries[static_cast<std::size_t>(field.Summary)];
}

// The kind of a control and what is special to it; the place is between the two.
struct ControlText {
  std::string Place;

  std::string operator()(const Field* field) const {
    return "field" + Place + Look(*field) + SummaryOf(*field) + Quoted(field->Text);
  }
  std::string operator()(const Label* label) const {
    return "label" + Place + Look(*label) + Quoted(label->Caption());
  }
  std::string operator()(const Image* image) const {
    static constexpr std::array Fits{" fill", " centred", " top-right"};
    return "image" + Place + Fits[static_cast<std::size_t>(image->Placement)];
  }
  std::string operator()(const Line* line) const {
    return "line" + Place + " weight " + std::to_string(line->Weight);
  }
  std::string operator()(const Shape* shape) const {
    return "shape" + Place + " weight " + std::to_string(shape->Weight) +
           (shape->Fill ? " fill " + HexColor(*shape->Fill) : "");
  }
  std::string operator()(const CheckBox* /*box*/) const { return "checkbox" + Place; }
  std::string operator()(const SubReport* /*subReport*/) const { return "subreport" + Place; }
};

std::string Describe(const Control& control) {
  return std::visit(ControlText{Place(control)}, control.Self());
}

std::string Describe(const Section& section) {
  static constexpr std::array Kinds{" page-header", " group-header", " detail", " group-footer",
                                    " page-footer"};
  static constexpr std::array Keeps{"", " keep-first", " keep-all"};
  std::string line = "section " + std::string(section.Name);
  line += Kinds[static_cast<std::size_t>(section.Kind)];
  line += " " + Number(section.Height);
  if (section.FitsControls) line += " grows";
  line += Keeps[static_cast<std::size_t>(section.GroupKeepTogether)];
  if (section.Repeat) line += " repeats";
  return line + "\n";
}

std::string Describe(const ActiveReport& report) {
  std::string layout = "report " + std::string(report.Name) + " " + Number(report.PrintWidth) + "\n";
  for (const auto& section : report.Sections()) {
    layout += Describe(*section);
    for (const auto& control : section->Controls()) layout += "  " + Describe(*control) + "\n";
  }
  return layout;
}

std::filesystem::path LayoutFolder() {
  return std::filesystem::path(SourceFolder()) / "tests" / "core" / "report" / "layouts";
}

std::vector<std::string> ReportNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(LayoutFolder())) {
    names.push_back(entry.path().stem().string());
  }
  std::ranges::sort(names);
  return names;
}

struct Layout : testing::TestWithParam<std::string> {
  // The list of a data set spells one name differently.
  std::shared_ptr<ActiveReport> Create(const std::string& name) {
    if (name == "rptTarvis") {
      return std::make_shared<rptTarvis>(Run.Context(), AllFunctions(), CreateFunctionReport, Run.Windows);
    }
    if (name == "rptBaseHeader") return std::make_shared<rptBaseHeader>(Run.Context(), CreateFunctionReport);
    if (name == "rptCover") return std::make_shared<rptCover>(Run.Context());
    return CreateFunctionReport(name == "rptTraceObjectOverlap" ? "rptTraceObjrctOverlap" : name,
                                Run.Context());
  }

  ReportRun Run;
};

TEST_P(Layout, HasTheSectionsAndControlsOfItsTable) {
  const auto report = Create(GetParam());
  ASSERT_NE(report, nullptr);
  if (GetParam() == "rptUPWizard") report->Sections()[1]->Format();  // places its controls there
  std::ifstream file(LayoutFolder() / (GetParam() + ".txt"), std::ios::binary);
  std::ostringstream table;
  table << file.rdbuf();
  EXPECT_EQ(FirstDifference(table.str(), Describe(*report)), "");
}

INSTANTIATE_TEST_SUITE_P(Reports, Layout, testing::ValuesIn(ReportNames()),
                         [](const auto& name) { return name.param; });

TEST(Layouts, AreTableByTableThoseOfAllReports) {
  EXPECT_EQ(ReportNames().size(), 32U);
}

}  // namespace
}  // namespace tarvis
