// Which reports move whole to the next page where the rest of a page is too low for them, and which begin
// there.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>

#include "support/report_run.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

constexpr float Paper = 14918;
constexpr float Margin = 50;  // twips of room more or less than the report needs

struct KeptReport {
  const char* Name;
  bool MovesWhole;
};

void PrintTo(const KeptReport& report, std::ostream* out) {
  *out << report.Name;
}

struct KeptGroup : testing::TestWithParam<KeptReport> {
  KeptGroup() {
    PrintRun& run = Report.Run;
    run.Session.Mode = Mode::Trace;
    run.Session.OverlapNum = 3;
    run.Options.ColorType = 2;  // prints no picture
    run.User.UserNum = run.User.SwitchNum = 3;
    run.User.Prm.Resize(3);
    run.User.Switches.Resize(3);
    for (int row = 0; row < 3; ++row) run.User.Prm[row].No = "Pn" + std::to_string(row);  // of no switch
    run.Trace.CursolSelect = run.RealTrace.CursolSelect = run.Sim.CursolSelect = 2;
    run.Sim.PatternSetting.PatternCount = 3;
    run.Sim.CmpUserNum = 3;
    run.Sim.CmpUser.Resize(3);
    run.IdxTbl.IndexCnt = run.ZoneTbl.ZoneCnt = run.JogTbl.JspdCnt = 3;
    run.IdxTbl.Index.Resize(3);
    run.ZoneTbl.Zone.Resize(3);
    run.JogTbl.Jspd.Resize(3);
  }

  float HeightAlone() {
    float lowest = 0;
    for (const Item& item : Report.ComposeAlone(GetParam().Name, 60000).Items) {
      lowest = std::max(lowest, item.Box.Bottom());
    }
    return lowest;
  }
  // The page of the report's band where a block above leaves `room` twips of the first page.
  std::size_t PageBelowBlock(float room) {
    SampleReport host;
    Report.Run.Session.MasterReport = &host;  // takes the contents entries
    SubReport& place = host.Growing(SectionKind::Detail, "Detail").AddSubReport("sbr", {0, 0, 9000, 0});
    host.Rows(2, [&](int row) {
      if (row == 0) {
        const auto block = std::make_shared<SampleReport>();
        AddBlock(block->Growing(SectionKind::Detail, "Detail"), "block", Paper - room);
        place.object = block;
      } else {
        place.object = CreateFunctionReport(GetParam().Name, Report.Context());
      }
    });
    const Document document = ComposeSample(host, Paper);
    for (std::size_t page = 0; page < document.Pages.size(); ++page) {
      const Page& range = document.Pages[page];
      for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
        if (document.Names[document.Items[index].Control] == "Label1") return page + 1;
      }
    }
    return 0;
  }

  ReportRun Report;
};

TEST_P(KeptGroup, StaysOnAPageThatHasRoomForIt) {
  EXPECT_EQ(PageBelowBlock(HeightAlone() + Margin), 1U);
}

TEST_P(KeptGroup, MovesWholeOrBeginsWhereTheRoomIsTooLow) {
  EXPECT_EQ(PageBelowBlock(HeightAlone() - Margin), GetParam().MovesWhole ? 2U : 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Reports, KeptGroup,
    testing::Values(KeptReport{"rptUserPrm", true}, KeptReport{"rptUserSwitch", true},
                    KeptReport{"rptTraceGraph", true}, KeptReport{"rptTraceObject", false},
                    KeptReport{"rptTraceObjrctOverlap", false}, KeptReport{"rptTraceTrigger", true},
                    KeptReport{"rptRealTraceGraph", true}, KeptReport{"rptRealTraceInfo", true},
                    KeptReport{"rptMechaGraph", true}, KeptReport{"rptMechaResonance", true},
                    KeptReport{"rptMechaMeasure", true}, KeptReport{"rptSimGraph", true},
                    KeptReport{"rptSimInfo", true}, KeptReport{"rptSimRef1", true},
                    KeptReport{"rptSimRef2", true}, KeptReport{"rptSimSettingSvMt", true},
                    KeptReport{"rptSimCmpFileList", true}, KeptReport{"rptSimCmpTime", true},
                    KeptReport{"rptSimCmpUser", false}, KeptReport{"rptSimCmpUserEx", false},
                    KeptReport{"rptIdxIdxTblTable", true}, KeptReport{"rptIdxIdxTblExTable", true},
                    KeptReport{"rptIdxZoneTblTable", true}, KeptReport{"rptIdxJogTblTable", true}),
    [](const auto& report) { return std::string(report.param.Name); });

}  // namespace
}  // namespace tarvis
