// Whole documents of every function on papers from A6 to A3: all that prints on A4 lies on each of them.
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "report/paper_setup.h"
#include "support/host_run.h"
#include "support/source_folder.h"

namespace tarvis {
namespace {

struct Paper {
  const char* Name;
  float Width;  // twips
  float Height;
};

constexpr std::array Papers = {Paper{"A6 upright", 5953, 8391},      Paper{"A6 across", 8391, 5953},
                               Paper{"A5 upright", 8391, 11906},     Paper{"A5 across", 11906, 8391},
                               Paper{"B5 upright", 10318, 14570},    Paper{"B5 across", 14570, 10318},
                               Paper{"A4 across", 16838, 11906},     Paper{"Letter upright", 12240, 15840},
                               Paper{"Letter across", 15840, 12240}, Paper{"A3 upright", 16838, 23811},
                               Paper{"A3 across", 23811, 16838}};

constexpr float HalfTwip = 0.5F;

// Each distinct text of each control, and each control that shows a picture; how often they print depends
// on the paper. What repeats on every page, and what counts pages, is omitted.
std::set<std::string> Inventory(const Document& document) {
  static const std::set<std::string> everyPage{"Label1", "Label2", "txtPageNumber", "txtPageCount"};
  std::set<std::string> inventory;
  for (const Item& item : document.Items) {
    const std::string control(document.Names[item.Control]);
    if (everyPage.contains(control)) continue;
    if (item.Kind == ItemKind::Picture) inventory.insert(control + " picture");
    if (item.Kind == ItemKind::Text)
      inventory.insert(control + " " + std::string(document.Texts[item.Source].Text));
  }
  return inventory;
}

struct PaperEdges : HostRun, testing::WithParamInterface<const char*> {
  PaperEdges() {
    for (const auto& entry : std::filesystem::directory_iterator(SourceFolder() + "/docs/examples"))
      TakeOver(entry.path());
    PrintOptions& options = Run.Options;
    for (HeaderOptions* header : {&options.UserHeader, &options.PrmWizHeader, &options.TraceHeader,
                                  &options.RealTraceHeader, &options.MechaHeader, &options.SimHeader,
                                  &options.IdxTblHeader, &options.ZoneTblHeader, &options.JogTblHeader})
      *header = {1, 1, 1, 1, 1, "Acceptance of the packing machine"};
    options.UserOption.fill(1);
    options.TraceOption.fill(1);
    options.RealTraceOption.fill(1);
    options.MechaOption.fill(1);
    options.SimOption.fill(1);
    options.IdxTblOption = {0, "0", "127", 1};
    options.ZoneTblOption = options.JogTblOption = 1;
    FillCover(options);
  }
  // A file of the examples with pictures that are there.
  void TakeOver(const std::filesystem::path& example) const {
    std::ostringstream text;
    text << std::ifstream(example, std::ios::binary).rdbuf();
    static const std::regex picture(R"(C:\\[^,\r]*\\([A-Za-z0-9]+\.(emf|bmp)))");
    Folder.Write("all.bmp", "picture");
    Folder.Write(example.filename().string(), std::regex_replace(text.str(), picture, PathOf("all.bmp")));
  }
  static void FillCover(PrintOptions& options) {
    options.Cover = options.SelectCover = 1;
    options.DrowCorp = "Packing Machines of the North Limited";
    options.DrowName = "Ann Example";
    options.DrowFAX = "+00 0000 000000 extension 45 of the second building";
    options.User[0] = {"Measurement of the axes", "Bottling and Sons", "Maintenance", "Bob Example",
                       "Road 1"};
    options.Greeting = "We send you what was measured.";
  }
  Document ComposeOn(const PageSetup& setup) {
    Run.Session.Mode = ModeOf(GetParam());
    Run.Session.OverlapMode = Run.Session.OverlapNum = 0;
    return Report.ComposeMaster(setup);
  }
};

TEST_P(PaperEdges, HaveNothingBeyondThem) {
  for (const Paper& paper : Papers) {
    const PageSetup setup = SetupForPaper(paper.Width, paper.Height);
    const Document document = ComposeOn(setup);
    for (const Item& item : document.Items) {
      if (item.Kind == ItemKind::Box || item.Kind == ItemKind::Line) continue;
      const std::string control = std::string(paper.Name) + ": " + std::string(document.Names[item.Control]);
      EXPECT_GE(item.Box.Left, -HalfTwip) << control;
      EXPECT_GE(item.Box.Top, -HalfTwip) << control;
      EXPECT_LE(item.Box.Right(), setup.Width + HalfTwip) << control;
      EXPECT_LE(item.Box.Bottom(), setup.Height + HalfTwip) << control;
    }
  }
}

TEST_P(PaperEdges, LoseNothing) {
  const auto whole = Inventory(ComposeOn(SetupForPaper(11906, 16838)));
  EXPECT_THAT(whole, testing::SizeIs(testing::Gt(20U)));
  for (const Paper& paper : Papers) {
    EXPECT_EQ(Inventory(ComposeOn(SetupForPaper(paper.Width, paper.Height))), whole) << paper.Name;
  }
}

INSTANTIATE_TEST_SUITE_P(Functions, PaperEdges,
                         testing::Values("User", "UPWizard", "Trace", "RealTrace", "Mecha", "Sim", "IdxTbl",
                                         "ZoneTbl", "JogTbl"),
                         [](const auto& mode) { return std::string(mode.param); });

TEST(SetupForPaper, KeepsTheShapeOfPaperThatIsTooNarrowAndTheSizeOfAllOther) {
  const PageSetup a4 = SetupForPaper(11906, 16838);
  EXPECT_EQ(a4.Width, 11906);
  EXPECT_EQ(a4.Height, 16838);
  EXPECT_EQ(SetupForPaper(11440, 8391).Width, 11440);
  EXPECT_EQ(SetupForPaper(11440, 8391).Height, 8391);
  const PageSetup a6 = SetupForPaper(5720, 8000);
  EXPECT_EQ(a6.Width, 11440);
  EXPECT_EQ(a6.Height, 16000);
  EXPECT_EQ(a6.Left, 1440);
}

}  // namespace
}  // namespace tarvis
