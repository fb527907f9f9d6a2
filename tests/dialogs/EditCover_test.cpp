// The editor of the cover letter: its fields, tabs and buttons.
#include "dialogs/EditCover.h"

#include "dialogs/controls/addressee_grid.h"
#include "dialogs/cover_editor.h"

namespace tarvis {
namespace {

TEST_F(CoverEditor, EveryBoxShowsItsTextAndStoresItOnOk) {
  int number = 0;
  for (const CoverText& text : Texts) *text.Text = "text " + std::to_string(++number);
  Run.Options.GreetingCnt = 7;
  OpenEditor();
  for (const CoverText& text : Texts) {
    EXPECT_EQ(Box(text.Box).Text(), *text.Text) << text.Box;
    Box(text.Box).SetText("new " + text.Box);
  }
  Click(In("cmdOK"));
  EXPECT_FALSE(Editor->isVisible());
  for (const CoverText& text : Texts) EXPECT_EQ(*text.Text, "new " + text.Box);
  EXPECT_EQ(Run.Options.GreetingCnt, 7);
}

TEST_F(CoverEditor, NothingIsStoredBeforeOkAndNothingOnCancel) {
  OpenEditor();
  Enter("txtDrow_0", 0);
  QTest::keyClicks(&In("txtDrow_0"), "Korvane");
  EXPECT_EQ(Run.Options.DrowCorp, "");
  Click(In("cmdCancel"));
  EXPECT_FALSE(Editor->isVisible());
  EXPECT_EQ(Run.Options.DrowCorp, "");
  OpenEditor();
  EXPECT_EQ(Box("txtDrow_0").Text(), "");
}

TEST_F(CoverEditor, AGoodZipCodePassesThroughUnchanged) {
  Run.Options.DrowZip = "4711-0815";
  OpenEditor();
  Click(In("cmdOK"));
  EXPECT_EQ(Run.Options.DrowZip, "4711-0815");
}

TEST_F(CoverEditor, ALogoPathOfAnyLengthPasses) {
  Run.Options.DrowLogo = Repeat("x", 4000);
  OpenEditor();
  Enter("txtDrow_8", 0);
  Key(Qt::Key_End);
  QTest::keyClicks(&In("txtDrow_8"), "yz");
  Click(In("cmdOK"));
  EXPECT_EQ(Run.Options.DrowLogo, Repeat("x", 4000) + "yz");
}

TEST_F(CoverEditor, LineBreaksComeBackAsTheyWere) {
  Run.Options.Greeting = "one\r\ntwo\nthree\r\n";
  Run.Options.DrowSect = "Drives\r\nBay 4";
  OpenEditor();
  EXPECT_EQ(Box("txtGreeting").Text(), "one\r\ntwo\nthree\r\n");
  Click(In("cmdOK"));
  EXPECT_EQ(Run.Options.Greeting, "one\r\ntwo\nthree\r\n");
  EXPECT_EQ(Run.Options.DrowSect, "Drives\r\nBay 4");
}

TEST_F(CoverEditor, BoxesUndo) {
  OpenEditor();
  Enter("txtDrow_0", 0);
  Paste("Korvane");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box("txtDrow_0").Text(), "");
  Enter("txtDrow_1", 0);
  Paste("Drives");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box("txtDrow_1").Text(), "");
}

TEST_F(CoverEditor, TabSelectsTheTextOfTheBoxThatItEnters) {
  Run.Options.DrowSect = "Drives\r\nBay 4";
  Run.Options.DrowName = "Aldous";
  OpenEditor();
  Enter("txtDrow_0", 0);
  Key(Qt::Key_Tab);
  ASSERT_EQ(FocusName(), "txtDrow_1");
  QTest::keyClicks(QApplication::focusWidget(), "X");
  EXPECT_EQ(Box("txtDrow_1").Text(), "X");
  Key(Qt::Key_Tab);
  ASSERT_EQ(FocusName(), "txtDrow_2");
  QTest::keyClicks(QApplication::focusWidget(), "Y");
  EXPECT_EQ(Box("txtDrow_2").Text(), "Y");
}

TEST_F(CoverEditor, CaptionsReadAsDesigned) {
  OpenEditor();
  EXPECT_EQ(Editor->windowTitle(), "Cover");
  const auto caption = [this](const char* name) {
    return PlainCaption(In(name).property("text").toString()).toStdString();
  };
  EXPECT_EQ(caption("Label1_0"), "Company Name:");
  EXPECT_EQ(caption("Label1_7"), "e-mail:");
  EXPECT_EQ(caption("Label1_8"), "Place to store for the logo files + File name:");
  EXPECT_EQ(caption("Label3_0"), "Title");
  EXPECT_EQ(caption("cmdConpare"), "Reference ");
  EXPECT_EQ(caption("lblGreeting"),
            "Input the Greeting Sentences.\nUp to 84 characters can be inputted in one line and up to 11 "
            "lines can be accepted. ");
  std::vector<std::string> tabs;
  for (int tab = 0; tab < Tabs().Bar()->count(); ++tab)
    tabs.push_back(PlainCaption(Tabs().Bar()->tabText(tab)).toStdString());
  EXPECT_THAT(tabs, testing::ElementsAre("Submitter", "Where to Submit (No.1)", "Where to Submit (No.2)",
                                         "Where to Submit (No.3)", "Greeting Sentences"));
}

TEST_F(CoverEditor, TheKeyboardAloneEditsALetter) {
  Run.Options.Cover = 1;
  Open(2, "", "User");
  Key(Qt::Key_E, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Dialog->findChild<EditCover*>() != nullptr; }));
  Editor = Dialog->findChild<EditCover*>();
  ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Editor; }));
  EXPECT_TRUE(Editor->isModal());
  Key(Qt::Key_M, Qt::AltModifier);
  ASSERT_EQ(FocusName(), "txtDrow_0");
  QTest::keyClicks(QApplication::focusWidget(), "Korvane");
  Key(Qt::Key_1, Qt::AltModifier);
  ASSERT_EQ(Tabs().CurrentTab(), 1);
  Key(Qt::Key_I, Qt::AltModifier);
  ASSERT_EQ(FocusName(), "txtUser1_0");
  QTest::keyClicks(QApplication::focusWidget(), "Dear Sirs");
  Key(Qt::Key_D, Qt::AltModifier);
  QTest::keyClicks(QApplication::focusWidget(), "Drives");
  Key(Qt::Key_Return);
  QTest::keyClicks(QApplication::focusWidget(), "Bay 4");
  Key(Qt::Key_G, Qt::AltModifier);
  Key(Qt::Key_Tab);
  ASSERT_EQ(FocusName(), "txtGreeting");
  QTest::keyClicks(QApplication::focusWidget(), "Hello");
  Key(Qt::Key_O, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Editor.isNull(); }));
  EXPECT_EQ(Run.Options.DrowCorp, "Korvane");
  EXPECT_EQ(Run.Options.User[0].Sect, "Drives\r\nBay 4");
  EXPECT_EQ(Run.Options.Greeting, "Hello");
  const AddresseeGrid& grid = Find<AddresseeGrid>("Spread");
  EXPECT_EQ(grid.SettingValue(1), "Dear Sirs");
  EXPECT_EQ(grid.SettingValue(3), "Drives Bay 4");
}

TEST_F(CoverEditor, CancellingTheRunAfterEditingLeavesTheOptionsFile) {
  WriteFile("PrintOption.ToT", "as it was");
  Run.Options.Cover = 1;
  Open(2, "", "User");
  Click(Find("cmdEdit"));
  Editor = Dialog->findChild<EditCover*>();
  ASSERT_NE(Editor, nullptr);
  ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Editor; }));
  Box("txtDrow_0").SetText("new");
  Click(In("cmdOK"));
  EXPECT_EQ(Run.Options.DrowCorp, "new");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Editor.isNull(); }));
  Click(Find("cmdCancel"));
  ExpectRunEnded();
  EXPECT_EQ(OptionsFile(), "as it was");
}

}  // namespace
}  // namespace tarvis
