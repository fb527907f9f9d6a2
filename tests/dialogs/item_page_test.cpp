// What all item pages share: header keys, titles, when they load and store.
#include "dialogs/pages/item_page.h"

#include <QClipboard>

#include "dialogs/dialog_run.h"
#include "dialogs/pages/InfWizard.h"

namespace tarvis {
namespace {

using ItemPages = DialogRun;

const std::string FortyOne = "12345678901234567890123456789012345678901";
const std::string Forty = FortyOne.substr(0, 40);

using HeaderOfPage = HeaderOptions PrintOptions::*;

struct KeyOfPage {
  const char* Page;
  std::int16_t Edition;
  int Entry;
  HeaderOfPage Header;
};

const std::vector<KeyOfPage> KeysOfPages{
    {"InfUser", 2, 0, &PrintOptions::UserHeader},     {"InfTrace", 2, 1, &PrintOptions::TraceHeader},
    {"InfIdxTbl", 2, 2, &PrintOptions::IdxTblHeader}, {"InfZoneTbl", 2, 3, &PrintOptions::ZoneTblHeader},
    {"InfJogTbl", 2, 4, &PrintOptions::JogTblHeader}, {"InfRealTrace", 4, 2, &PrintOptions::RealTraceHeader},
    {"InfMecha", 4, 3, &PrintOptions::MechaHeader},   {"InfSimOverlap", 4, 4, &PrintOptions::SimHeader},
    {"InfTrace", 1, 1, &PrintOptions::TraceHeader},   {"InfSim", 1, 5, &PrintOptions::SimHeader},
};

TEST_F(ItemPages, EveryPageWritesItsHeaderKeyAtEachClick) {
  for (const KeyOfPage& key : KeysOfPages) {
    SCOPED_TRACE(key.Page);
    DefaultPrintOptions(Run);
    Open(key.Edition, "200", "PrnSetting");
    ChooseFunction(key.Entry);
    ASSERT_EQ(ShownPages(), key.Page);
    HeaderOptions& header = Run.Options.*key.Header;
    EXPECT_EQ(Find<LineBox>("txtTitle", key.Page).Text(), header.TitleText);
    Click(Check("chkHeader_0", key.Page));
    EXPECT_EQ(header.Title, 0);
    Click(Check("chkHeader_1", key.Page));
    EXPECT_EQ(header.ModelsInfo, 0);
    Click(Check("chkHeader_2", key.Page));
    EXPECT_EQ(header.PrintDate, 0);
    Click(Check("chkHeader_3", key.Page));
    EXPECT_EQ(header.FileName, 0);
    Click(Check("chkFooter", key.Page));
    EXPECT_EQ(header.Pages, 0);
    Click(Check("chkFooter", key.Page));
    EXPECT_EQ(header.Pages, 1);
  }
}

TEST_F(ItemPages, ATitleSwitchedOffInTheOptionsOpensGreyWithItsText) {
  Run.Options.UserHeader.Title = 0;
  Run.Options.UserHeader.TitleText = "My list";
  Open(2, "", "User");
  EXPECT_FALSE(Check("chkHeader_0", "InfUser").isChecked());
  EXPECT_FALSE(Find("txtTitle", "InfUser").isEnabled());
  EXPECT_EQ(Find<LineBox>("txtTitle", "InfUser").Text(), "My list");
}

TEST_F(ItemPages, TheTitleBoxFollowsItsCheckBox) {
  Open(2, "", "User");
  EXPECT_TRUE(Find("txtTitle", "InfUser").isEnabled());
  Click(Check("chkHeader_0", "InfUser"));
  EXPECT_FALSE(Find("txtTitle", "InfUser").isEnabled());
  EXPECT_EQ(Run.Options.UserHeader.TitleText, "Parameters");
  Click(Check("chkHeader_0", "InfUser"));
  EXPECT_TRUE(Find("txtTitle", "InfUser").isEnabled());
}

TEST_F(ItemPages, TypingStoresTheTitleAtEachKey) {
  Open(2, "", "User");
  auto& title = Find<LineBox>("txtTitle", "InfUser");
  title.setFocus();
  title.selectAll();
  QTest::keyClicks(&title, "Axis");
  EXPECT_EQ(Run.Options.UserHeader.TitleText, "Axis");
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Run.Options.UserHeader.TitleText, "Axi");
}

TEST_F(ItemPages, TypingInTheMiddleStaysThereAndCanBeUndone) {
  Open(2, "", "User");
  auto& title = Find<LineBox>("txtTitle", "InfUser");
  title.setFocus();
  Key(Qt::Key_Home);
  QTest::keyClicks(&title, "My ");
  EXPECT_EQ(Run.Options.UserHeader.TitleText, "My Parameters");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Run.Options.UserHeader.TitleText, "Parameters");
}

TEST_F(ItemPages, ATitleOfFortyOneBytesInTheFileRaisesTheMessageAsThePageOpens) {
  Run.Options.UserHeader.TitleText = FortyOne;
  Open(2, "", "User");
  EXPECT_THAT(Desktop.Messages, testing::ElementsAre(TitleTooLong));
  EXPECT_EQ(Run.Options.UserHeader.TitleText, Forty);
  EXPECT_EQ(Find<LineBox>("txtTitle", "InfUser").Text(), Forty);
}

TEST_F(ItemPages, TheCutTitleIsStoredBeforeTheMessageShows) {
  struct Watching : FakeDesktop {
    void ShowMessage(const std::string& title, const std::string& text) override {
      FakeDesktop::ShowMessage(title, text);
      Seen = Watched->Options.UserHeader.TitleText;
      for (const QWidget* window : QApplication::topLevelWidgets()) {
        OverTheDialog = OverTheDialog || (window->isVisible() && window->objectName() == "PrintSetting");
      }
    }
    PrintRun* Watched = nullptr;
    std::string Seen;
    bool OverTheDialog = false;
  };
  TestRunOn<Watching> watched;
  Watching& desktop = watched.Desktop;
  PrintRun& run = watched.Run;
  desktop.Watched = &run;
  DefaultPrintOptions(run);
  run.Session.HostEdition = 2;
  run.Session.Mode = Mode::User;
  run.Options.UserHeader.TitleText = FortyOne;
  delete new PrintSetting(run, {});
  EXPECT_EQ(desktop.Seen, Forty);
  EXPECT_TRUE(desktop.OverTheDialog) << "no message comes before the dialog";
}

TEST_F(ItemPages, TwentyOneDoubleByteCharactersAreRefused) {
  Run.CodePage = CodePage(932);
  Open(2, "", "User");
  auto& title = Find<LineBox>("txtTitle", "InfUser");
  title.setFocus();
  title.selectAll();
  QGuiApplication::clipboard()->setText(QString(21, QChar(0x8A66)));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_THAT(Desktop.Messages, testing::ElementsAre(TitleTooLong));
  EXPECT_EQ(Run.Options.UserHeader.TitleText, QString(20, QChar(0x8A66)).toStdString());
  EXPECT_EQ(FocusName(), "txtTitle");
  Key(Qt::Key_X);  // the cut text fills the box
  EXPECT_EQ(title.text().size(), 20);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(title.MaximumLength(), 40);
}

TEST_F(ItemPages, APastedTextOfSixtyCharactersStopsAtTheMaximumLength) {
  Open(2, "", "User");
  auto& title = Find<LineBox>("txtTitle", "InfUser");
  title.setFocus();
  title.selectAll();
  QGuiApplication::clipboard()->setText(QString(60, 'a'));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Run.Options.UserHeader.TitleText, std::string(40, 'a'));
  EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(ItemPages, ItemsOfTheParametersWriteTheirElements) {
  Open(2, "", "User");
  ClickTab(Page("InfUser").Tabs(), 1);
  const std::vector<const char*> boxes{"chkItemUser_0", "chkItemUser_2", "chkItemUser_3", "chkItemEtc"};
  const std::vector<std::size_t> elements{0, 2, 3, 4};
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    Click(Check(boxes[i], "InfUser"));
    EXPECT_EQ(Run.Options.UserOption.at(elements[i]), 0) << boxes[i];
  }
  EXPECT_EQ(Run.Options.UserOption[1], 1);
}

TEST_F(ItemPages, SwitchesInfoGreysWithNameAndKeepsItsMark) {
  Open(2, "", "User");
  ClickTab(Page("InfUser").Tabs(), 1);
  TickBox& switches = Check("chkItemUser_1", "InfUser");
  Click(Check("chkItemUser_0", "InfUser"));
  EXPECT_FALSE(switches.isEnabled());
  EXPECT_TRUE(switches.isChecked());
  EXPECT_EQ(Run.Options.UserOption[1], 1);
  Click(switches);  // greyed: no click
  EXPECT_TRUE(switches.isChecked());
  Click(Check("chkItemUser_0", "InfUser"));
  EXPECT_TRUE(switches.isEnabled());
  EXPECT_TRUE(switches.isChecked());
}

TEST_F(ItemPages, ASavedNameSwitchedOffOpensWithSwitchesInfoGreyAndMarked) {
  Run.Options.UserOption = {0, 1, 1, 1, 1};
  Open(2, "", "User");
  EXPECT_FALSE(Check("chkItemUser_1", "InfUser").isEnabled());
  EXPECT_TRUE(Check("chkItemUser_1", "InfUser").isChecked());
}

TEST_F(ItemPages, CommentsOfTheTablesWriteTheirElement) {
  Open(2, "", "PrnSetting");
  ChooseFunction(3);
  ClickTab(Page("InfZoneTbl").Tabs(), 1);
  Click(Check("chkItemEtc", "InfZoneTbl"));
  EXPECT_EQ(Run.Options.ZoneTblOption, 0);
  ChooseFunction(4);
  ClickTab(Page("InfJogTbl").Tabs(), 1);
  Click(Check("chkItemEtc", "InfJogTbl"));
  EXPECT_EQ(Run.Options.JogTblOption, 0);
}

TEST_F(ItemPages, APageKeepsItsTabWhileAnotherIsShown) {
  Open(2, "", "PrnSetting");
  ClickTab(Page("InfUser").Tabs(), 1);
  ChooseFunction(3);
  ChooseFunction(0);
  EXPECT_EQ(Page("InfUser").Tabs().CurrentTab(), 1);
}

TEST_F(ItemPages, AppearingAppliesTheOptionsAndSelectingTheSameEntryAgainDoesNot) {
  Open(2, "", "PrnSetting");
  Run.Options.UserHeader.TitleText = "changed behind the page";
  auto& list = Find<QComboBox>("cmbFunc");
  emit list.activated(0);
  EXPECT_EQ(Find<LineBox>("txtTitle", "InfUser").Text(), "Parameters");
  ChooseFunction(4);
  ChooseFunction(0);
  EXPECT_EQ(Find<LineBox>("txtTitle", "InfUser").Text(), "changed behind the page");
}

TEST_F(ItemPages, TheShownPageAloneLoadsWithTheDialog) {
  Run.Options.TraceHeader.TitleText = FortyOne;
  Open(2, "", "User");
  EXPECT_TRUE(Desktop.Messages.empty());
  EXPECT_EQ(Run.Options.TraceHeader.TitleText, FortyOne);
}

TEST_F(ItemPages, ALoadWithUnchangedValuesRunsNoHandling) {
  Open(2, "", "User");
  int clicks = 0;
  for (TickBox* box : Page("InfUser").findChildren<TickBox*>()) {
    QObject::connect(box, &TickBox::ValueChanged, Dialog, [&clicks] { ++clicks; });
  }
  Page("InfUser").Load();
  EXPECT_EQ(clicks, 0);
}

TEST_F(ItemPages, AnElementOfTwoIsAGreyMarkAndMinusOneIsARunTimeFailure) {
  Run.Options.UserOption[2] = 2;
  Open(2, "", "User");
  EXPECT_EQ(Check("chkItemUser_2", "InfUser").checkState(), Qt::PartiallyChecked);
  EXPECT_EQ(Run.Options.UserOption[2], 2);
  ClickTab(Page("InfUser").Tabs(), 1);
  Click(Check("chkItemUser_2", "InfUser"));
  EXPECT_EQ(Run.Options.UserOption[2], 0);
  Run.Options.UserOption[2] = -1;
  try {
    Page("InfUser").Load();
    ADD_FAILURE() << "no failure";
  } catch (const RunTimeFailure& failure) {
    EXPECT_STREQ(failure.what(), "PrintOption.ToT: UserOption: element 3: invalid check box value: '-1'");
  }
}

TEST_F(ItemPages, TheWizardsPageOffersNoFileName) {
  Run.Options.PrmWizHeader.FileName = 1;
  QWidget window;
  auto* page = new InfWizard(Run, &window);
  EXPECT_EQ(Run.Options.PrmWizHeader.FileName, 1) << "only a load forces it off";
  page->show();
  page->Load();
  EXPECT_EQ(Run.Options.PrmWizHeader.FileName, 0);
  EXPECT_TRUE(page->findChild<TickBox*>("chkHeader_3")->isHidden());
  EXPECT_EQ(page->Tabs().Bar()->count(), 1);
}

TEST_F(ItemPages, TheDialogNeverTouchesTheWizardsOptions) {
  Run.Options.PrmWizHeader.FileName = 1;
  Open(1, "100", "PrnSetting");
  ChooseFunction(1);
  EXPECT_EQ(ShownPages(), "InfTrace");
  Click(Check("chkHeader_1", "InfTrace"));
  EXPECT_EQ(Run.Options.PrmWizHeader.ModelsInfo, 1);
  EXPECT_EQ(Run.Options.PrmWizHeader.FileName, 1);
  EXPECT_EQ(Run.Options.TraceHeader.ModelsInfo, 0);
}

TEST_F(ItemPages, TabsChangeByKeyboard) {
  Open(2, "", "User");
  TabControl& tabs = Page("InfUser").Tabs();
  Find("chkFooter", "InfUser").setFocus();
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs.CurrentTab(), 1);
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs.CurrentTab(), 0);
  Key(Qt::Key_P, Qt::AltModifier);
  EXPECT_EQ(tabs.CurrentTab(), 1);
}

}  // namespace
}  // namespace tarvis
