// Tables of simulations whose columns show by a count.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/report_run.h"

namespace tarvis {
namespace {

struct CountedColumns {
  const char* Report;
  int Most;
  const char* Title;
  const char* Value;
};

void PrintTo(const CountedColumns& columns, std::ostream* out) {
  *out << columns.Report;
}

struct ShownColumns : testing::TestWithParam<CountedColumns> {
  ShownColumns() {
    Sim.CmpUserNum = 1;
    Sim.CmpUser.Resize(1);
    Sim.CmpUser[0].No = "Pn100";
    for (int value = 0; value <= 10; ++value) {
      Sim.CmpUser[0].Values[value] = "v" + std::to_string(value + 1);
      Sim.StartTime.Values[value] = "v" + std::to_string(value + 1);
    }
  }
  Document ComposeWith(int count) {
    Sim.PatternSetting.PatternCount = static_cast<std::int16_t>(count);
    Run.Run.Session.OverlapNum = static_cast<std::int16_t>(count);
    return Run.ComposeAlone(GetParam().Report);
  }
  // Titles are in one printing of the guide; of the values, the first row counts.
  static std::string TextOf(const Document& document, const std::string& control) {
    const auto printed = PrintedOf(document, control);
    return printed.empty() || printed[0].Texts.empty() ? "" : printed[0].Texts[0];
  }

  ReportRun Run;
  SimData& Sim = Run.Run.Sim;
};

TEST_P(ShownColumns, AreAsManyAsTheCountSays) {
  const CountedColumns& columns = GetParam();
  const std::string firstTitle = std::string(columns.Report) == "rptSimRef1" ? "1" : "Target";
  const int before = firstTitle == "1" ? 0 : 1;  // comparisons count the data after the target from 1
  for (int count = 1; count <= columns.Most; ++count) {
    const Document document = ComposeWith(count);
    for (int column = 1; column <= columns.Most; ++column) {
      const std::string number = std::to_string(column);
      const std::string title = column == 1 ? firstTitle : std::to_string(column - before);
      EXPECT_EQ(TextOf(document, columns.Title + number), column <= count ? title : "")
          << "column " << column << " of " << count;
      EXPECT_EQ(TextOf(document, columns.Value + number), column <= count ? "v" + number : "")
          << "column " << column << " of " << count;
    }
  }
}

TEST_P(ShownColumns, AreTheFirstOnlyForANegativeCount) {
  const Document document = ComposeWith(-1);
  EXPECT_NE(TextOf(document, std::string(GetParam().Title) + "1"), "");
  EXPECT_NE(TextOf(document, std::string(GetParam().Value) + "1"), "");
  EXPECT_EQ(TextOf(document, std::string(GetParam().Title) + "2"), "");
  EXPECT_EQ(TextOf(document, std::string(GetParam().Value) + "2"), "");
}

INSTANTIATE_TEST_SUITE_P(Tables, ShownColumns,
                         testing::Values(CountedColumns{"rptSimRef1", 10, "txtTitleValue", "txtValueVal"},
                                         CountedColumns{"rptSimCmpUser", 7, "txtTitleFile", "txtValueVal"},
                                         CountedColumns{"rptSimCmpUserEx", 11, "txtTitleFile",
                                                        "txtValueVal"}),
                         [](const auto& columns) { return std::string(columns.param.Report); });

}  // namespace
}  // namespace tarvis
