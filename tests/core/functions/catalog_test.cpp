// The one table of functions: what each mode prints.
#include "functions/catalog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "support/report_run.h"

namespace tarvis {
namespace {

using testing::UnorderedElementsAre;

TEST(Functions, HaveARowForEachModeThatPrints) {
  std::vector<Mode> modes;
  std::set<std::string_view> files;
  for (const PrintFunction* function : AllFunctions()) {
    modes.push_back(function->Mode);
    EXPECT_TRUE(files.insert(function->File).second) << function->File << " is read by two functions";
    EXPECT_EQ(FindFunction(AllFunctions(), function->Mode), function);
  }
  EXPECT_THAT(modes, UnorderedElementsAre(Mode::User, Mode::UPWizard, Mode::Trace, Mode::RealTrace,
                                          Mode::Mecha, Mode::Sim, Mode::IdxTbl, Mode::ZoneTbl, Mode::JogTbl));
  for (const Mode mode : {Mode::None, Mode::SimEx, Mode::PrnSetting})
    EXPECT_EQ(FindFunction(AllFunctions(), mode), nullptr) << TextOf(mode);
}

TEST(Functions, LayOnlyTracesAndSimulationsOverEachOther) {
  for (const PrintFunction* function : AllFunctions()) {
    const bool overlaps = function->Mode == Mode::Trace || function->Mode == Mode::Sim;
    EXPECT_EQ(function->Overlap != nullptr, overlaps) << function->File;
  }
}

TEST(Functions, MakeTheirReportsByName) {
  ReportRun run;
  for (const PrintFunction* function : AllFunctions()) {
    for (const NamedReport& report : function->Reports) {
      const auto made = CreateFunctionReport(std::string(report.Name), run.Context());
      ASSERT_NE(made, nullptr) << report.Name;
      // One list spells the name of its report in a way of its own.
      EXPECT_EQ(made->Name, report.Name == "rptTraceObjrctOverlap" ? "rptTraceObjectOverlap" : report.Name);
    }
  }
}

}  // namespace
}  // namespace tarvis
