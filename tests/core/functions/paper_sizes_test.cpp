// Reports with pictures on papers from A6 to A3: all that prints on A4 prints on each of them, whole.
#include <map>
#include <set>

#include "report/engine/text_cache.h"
#include "support/host_run.h"

namespace tarvis {
namespace {

// Heights of the body, in twips: paper less margins and footer.
constexpr float A4 = 14918;
const std::map<std::string, float> Bodies{
    {"A6 across", 4033},    {"A6 upright", 6471}, {"half Letter across", 6000},
    {"B5 across", 8398},    {"A5 upright", 9986}, {"Letter across", 10320},
    {"half Letter", 10320}, {"A4 across", 9986},  {"A3 upright", 21891}};

// Each text of each control, and how many pictures each has.
std::multiset<std::string> CountedInventory(const Document& document) {
  std::set<std::string> texts;
  std::multiset<std::string> inventory;
  for (const Item& item : document.Items) {
    const std::string control(document.Names[item.Control]);
    if (item.Kind == ItemKind::Picture) inventory.insert(control + " picture");
    // Guides repeat, so each text counts once.
    if (item.Kind == ItemKind::Text)
      texts.insert(control + " " + std::string(document.Texts[item.Source].Text));
  }
  inventory.insert(texts.begin(), texts.end());
  return inventory;
}

struct PaperSizes : HostRun, testing::WithParamInterface<const char*> {
  PaperSizes() {
    Run.Session.ActiveHeader = {1, 1, 1, 1, 1, "Title"};
    const std::string graph = Picture("graph.bmp");
    const CursorRow first{"1.0", "2.0", "1.0", "Speed [min-1]"};
    const CursorRow second{"10", "20", "10", "Torque [%]"};
    Run.Trace.TraceGraph = Run.Trace.TraceNote = Run.Trace.TraceIONote = graph;
    Run.RealTrace.RealTraceGraph = Run.RealTrace.RealTraceNote = graph;
    Run.Sim.SimGraph = Run.Sim.SimNote = Run.Sim.SimIONote = graph;
    Run.Mecha.MechaGraph1 = Run.Mecha.MechaGraph2 = graph;
    Run.Trace.CursolSelect = Run.RealTrace.CursolSelect = Run.Sim.CursolSelect = Run.Mecha.CursolSelect = 2;
    Run.Trace.CursolInfo1 = Run.RealTrace.CursolInfo1 = Run.Sim.CursolInfo1 = first;
    Run.Trace.CursolInfo2 = Run.RealTrace.CursolInfo2 = Run.Sim.CursolInfo2 = second;
    FillWizard(graph);
  }
  void FillWizard(const std::string& picture) {
    UPWizardData& wizard = Run.UPWizard;
    wizard.Base = picture;
    wizard.ControlCaption = "Control Method";
    wizard.Control = "Position control";
    wizard.RatioCaption = "Ratio";
    wizard.Ratio = "2048";
    for (int slot = 1; slot <= 7; ++slot) {
      wizard.Ry[slot].Picture = picture;
      wizard.Ry[slot].Name = "Input " + std::to_string(slot);
      wizard.Ry[slot].Number = "CN1-" + std::to_string(slot);
    }
  }
};

TEST_P(PaperSizes, LoseNothing) {
  const auto whole = CountedInventory(Report.ComposeUnderHeader(GetParam(), A4));
  for (const auto& [paper, body] : Bodies) {
    EXPECT_EQ(CountedInventory(Report.ComposeUnderHeader(GetParam(), body)), whole) << paper;
  }
}

TEST_P(PaperSizes, SqueezeNothingAndKeepAllAboveTheFooter) {
  for (const auto& [paper, body] : Bodies) {
    const Document document = Report.ComposeUnderHeader(GetParam(), body);
    for (const Item& item : document.Items) {
      const std::string control = paper + ": " + std::string(document.Names[item.Control]);
      EXPECT_LE(item.Box.Bottom(), body + 1) << control;
      if (item.Kind == ItemKind::Picture) {
        EXPECT_GE(item.Box.Height, 100) << control;
      }
      if (item.Kind != ItemKind::Text) continue;
      const float size = document.Styles[document.Texts[item.Source].Style].Size;
      EXPECT_NEAR(item.Box.Height, LinePitch(size), 1) << control;
      EXPECT_GE(size, 3) << control;
    }
  }
}

TEST_P(PaperSizes, HaveNoPageWithoutContent) {
  for (const auto& [paper, body] : Bodies) {
    const Document document = Report.ComposeUnderHeader(GetParam(), body);
    for (const Page& page : document.Pages) {
      int whole = 0;
      for (std::uint32_t index = page.FirstItem; index < page.FirstItem + page.ItemCount; ++index) {
        const ItemKind kind = document.Items[index].Kind;
        whole += kind == ItemKind::Text || kind == ItemKind::Picture ? 1 : 0;
      }
      EXPECT_GT(whole, 0) << paper;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Reports, PaperSizes,
                         testing::Values("rptTraceGraph", "rptRealTraceGraph", "rptSimGraph", "rptMechaGraph",
                                         "rptUPWizard"),
                         [](const auto& report) { return std::string(report.param); });

// On which page the first item of a control is, counted from 1.
int PageOf(const Document& document, const std::string& control) {
  for (std::size_t page = 0; page < document.Pages.size(); ++page) {
    for (std::uint32_t index = 0; index < document.Pages[page].ItemCount; ++index) {
      const Item& item = document.Items[document.Pages[page].FirstItem + index];
      if (document.Names[item.Control] == control) return static_cast<int>(page) + 1;
    }
  }
  return 0;
}

struct LowPaper : PaperSizes {};

TEST_P(LowPaper, TheGraphIsUnderItsTitleAndTheLegendsFollow) {
  const Document document = Report.ComposeUnderHeader(GetParam(), 6471);
  EXPECT_EQ(PageOf(document, "Label1"), 1);
  EXPECT_EQ(PageOf(document, "imgGraph"), 1);
  EXPECT_EQ(PageOf(document, "imgNote"), 2);
  EXPECT_EQ(PageOf(document, "Label2"), 2);
  EXPECT_EQ(PageOf(document, "txtValueName"), 2);
}

INSTANTIATE_TEST_SUITE_P(Graphs, LowPaper,
                         testing::Values("rptTraceGraph", "rptRealTraceGraph", "rptSimGraph"),
                         [](const auto& report) { return std::string(report.param); });

struct MechaOnLowPaper : PaperSizes {};

TEST_P(MechaOnLowPaper, TheCaptionOfTheSecondGraphGoesWithIt) {
  const Document document = Report.ComposeUnderHeader(GetParam(), 6471);
  EXPECT_EQ(PageOf(document, "imgGraph1"), 1);
  EXPECT_EQ(PageOf(document, "Label5"), 2);
  EXPECT_EQ(PageOf(document, "imgGraph2"), 2);
}

INSTANTIATE_TEST_SUITE_P(Mecha, MechaOnLowPaper, testing::Values("rptMechaGraph"));

}  // namespace
}  // namespace tarvis
