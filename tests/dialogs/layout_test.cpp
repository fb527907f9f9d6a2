// Every control is visible whole, apart from its neighbours, and reachable, in every font size.
#include "dialogs/EditCover.h"
#include "dialogs/dialog_run.h"
#include "dialogs/layout_checks.h"

namespace tarvis {
namespace {

// Pixels: the size for which the dialogs are drawn, the usual ones, and one of a user who needs large
// letters.
constexpr int UserFonts[] = {11, 12, 15, 18, 24};

class Layout : public DialogRun, public testing::WithParamInterface<int> {
 protected:
  Layout() { SetUserFont(GetParam()); }
  ~Layout() override { SetUserFont(DrawnFontPixels); }
  void LookAtPage(const std::string& name) {
    ItemPage& page = Page(name.c_str());
    for (int tab = 0; tab < page.Tabs().Bar()->count(); ++tab) {
      SCOPED_TRACE(name + " tab " + std::to_string(tab));
      ClickTab(page.Tabs(), tab);
      ExpectApart(*page.Tabs().Page(tab));
      ExpectCaptionsWhole(*Dialog);
      ExpectTabsWhole(*page.Tabs().Bar());
      ExpectMnemonicsDiffer(*Dialog);
      Grab(*Dialog, name + std::to_string(tab) + "-" + std::to_string(GetParam()));
    }
  }
};

TEST_P(Layout, EveryPageOfTheTableEditionIsLegible) {
  Open(2, "200", "PrnSetting");
  for (int index = 0; index < 5; ++index) {
    ChooseFunction(index);
    LookAtPage(ShownPages());
  }
}

TEST_P(Layout, EveryPageOfTheComparingEditionIsLegible) {
  Open(4, "200", "PrnSetting");
  for (int index = 2; index < 5; ++index) {
    ChooseFunction(index);
    LookAtPage(ShownPages());
  }
}

TEST_P(Layout, TheSimulationPageIsLegible) {
  Open(1, "200", "Sim");
  LookAtPage("InfSim");
}

TEST_P(Layout, TheDialogItselfIsLegible) {
  Run.Options.Cover = 1;
  Run.Options.User[0] = {"Dear Sirs", "Korvane Works", "Drives\r\nTest Bay 4", "M. Aldous", ""};
  Open(2, "200", "PrnSetting");
  EXPECT_EQ(Dialog->windowTitle(), "Printing Item Setting");
  ExpectApart(*Find("Frame1").parentWidget());
  for (const char* frame : {"Frame1", "Frame2", "Frame3"}) ExpectApart(Find(frame));
  ExpectEverythingNamed(*Dialog);
  Grab(*Dialog, "PrintSetting-" + std::to_string(GetParam()));
}

TEST_P(Layout, EveryTabOfTheCoverEditorIsLegible) {
  Run.Options.Greeting = "Dear Sirs,\r\nplease find enclosed the records of test bay 4.";
  Run.Options.DrowLogo = Folder() + "/logo.bmp";
  QImage logo(60, 30, QImage::Format_RGB32);
  logo.fill(Qt::darkCyan);
  ASSERT_TRUE(logo.save(QString::fromStdString(Run.Options.DrowLogo)));
  EditCover editor(Run, nullptr);
  editor.show();
  ExpectApart(*editor.findChild<TabControl*>()->parentWidget());
  ExpectEverythingNamed(editor);
  auto* tabs = editor.findChild<TabControl*>();
  for (int tab = 0; tab < tabs->Bar()->count(); ++tab) {
    SCOPED_TRACE(tab);
    ClickTab(*tabs, tab);
    ExpectApart(*tabs->Page(tab));
    ExpectCaptionsWhole(editor);
    ExpectTabsWhole(*tabs->Bar());
    ExpectMnemonicsDiffer(editor);
    QApplication::processEvents();
    Grab(editor, "EditCover" + std::to_string(tab) + "-" + std::to_string(GetParam()));
  }
}

INSTANTIATE_TEST_SUITE_P(UserFonts, Layout, testing::ValuesIn(UserFonts));

using Captions = DialogRun;

TEST_F(Captions, ReadAsDesignedWithoutTheirMnemonicMarks) {
  Open(2, "200", "PrnSetting");
  EXPECT_EQ(PlainCaption(Check("chkCover").text()), "Attaching the Cover");
  EXPECT_EQ(PlainCaption(Find<OptionButton>("optDrow_2").text()), " Where to Submit (No.3)");
  EXPECT_EQ(PlainCaption(Page("InfUser").Tabs().Bar()->tabText(0)), "Header & Footer");
  EXPECT_EQ(PlainCaption(Check("chkItemUser_1", "InfUser").text()), "Switches Info");
}

TEST_F(Captions, TabWalksInReadingOrder) {
  Run.Options.Cover = 1;
  Open(2, "200", "PrnSetting");
  Find("chkCover").setFocus();
  std::vector<std::string> walked;
  for (int step = 0; step < 40 && (walked.empty() || FocusName() != "chkCover"); ++step) {
    walked.push_back(FocusName());
    Key(Qt::Key_Tab);
  }
  const auto place = [&walked](const char* name) {
    return std::find(walked.begin(), walked.end(), name) - walked.begin();
  };
  EXPECT_LT(place("chkCover"), place("optDrow_0"));
  EXPECT_LT(place("optDrow_0"), place("Spread"));
  EXPECT_LT(place("Spread"), place("cmbFunc"));
  EXPECT_LT(place("cmbFunc"), place("chkHeader_0"));
  EXPECT_LT(place("chkHeader_0"), place("txtTitle"));
  EXPECT_LT(place("txtTitle"), place("chkHeader_1"));
  EXPECT_LT(place("chkHeader_3"), place("chkFooter"));
  EXPECT_LT(place("chkFooter"), place("optColor_0"));
  EXPECT_LT(place("optColor_0"), place("cmdOK"));
  EXPECT_LT(place("cmdOK"), place("cmdCancel"));
  EXPECT_LT(place("cmdCancel"), static_cast<std::ptrdiff_t>(walked.size()));
}

}  // namespace
}  // namespace tarvis
