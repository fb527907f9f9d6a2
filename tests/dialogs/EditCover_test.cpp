#include "dialogs/EditCover.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QUrl>

#include "dialogs/dialog_run.h"
#include "dialogs/memo_box.h"

namespace tarvis {
namespace {

std::string TooLong(int limit) {
  return "Input Error|Try with  Less Characters.  Up to " + std::to_string(limit) +
         " Characters can be Inputted.";
}
std::string TooManyLines(int lines) {
  return "Input Error|Try with Less Lines. Up to " + std::to_string(lines) + "\nLines can be Inputted.";
}
std::string Repeat(const std::string& piece, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

// A field of the editor: its box, its tab, where its text is kept, and its limits.
struct CoverText {
  std::string Box;
  int Tab;
  std::string* Text;
  int Bytes;  // 0 for none
  bool TwoLines;
};

class CoverEditor : public DialogRun {
 protected:
  CoverEditor() {
    PrintOptions& options = Run.Options;
    Texts = {{"txtDrow_0", 0, &options.DrowCorp, 50, false}, {"txtDrow_1", 0, &options.DrowSect, 100, true},
             {"txtDrow_2", 0, &options.DrowName, 50, false}, {"txtDrow_3", 0, &options.DrowZip, 50, false},
             {"txtDrow_4", 0, &options.DrowAdr, 100, true},  {"txtDrow_5", 0, &options.DrowTEL, 50, false},
             {"txtDrow_6", 0, &options.DrowFAX, 50, false},  {"txtDrow_7", 0, &options.DrowEmail, 50, false},
             {"txtDrow_8", 0, &options.DrowLogo, 0, false}};
    for (int n = 1; n <= 3; ++n) {
      AddresseeBlock& block = options.User.at(static_cast<std::size_t>(n - 1));
      const std::string family = "txtUser" + std::to_string(n) + "_";
      Texts.push_back({family + "0", n, &block.Title, 56, false});
      Texts.push_back({family + "1", n, &block.Corp, 50, false});
      Texts.push_back({family + "2", n, &block.Sect, 100, true});
      Texts.push_back({family + "3", n, &block.Name, 50, false});
      Texts.push_back({family + "4", n, &block.Adr, 100, true});
    }
    Texts.push_back({"txtGreeting", 4, &options.Greeting, 924, false});
  }
  ~CoverEditor() override { delete Editor.data(); }

  void OpenEditor() {
    delete Editor.data();
    Editor = new EditCover(Run, nullptr, [this](QWidget*, const QString& filter) {
      AskedFilter = filter.toStdString();
      return Chosen;
    });
    Editor->show();
    Editor->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor));
  }
  QWidget& In(const std::string& name) { return *Editor->findChild<QWidget*>(QString::fromStdString(name)); }
  InputBox& Box(const std::string& name) { return dynamic_cast<InputBox&>(In(name)); }
  TabControl& Tabs() { return *Editor->findChild<TabControl*>(); }
  // Goes to a box as a user would.
  void Enter(const std::string& name, int tab) {
    if (Tabs().CurrentTab() != tab) ClickTab(Tabs(), tab);
    QTest::mouseClick(In(name).inherits("QPlainTextEdit")
                          ? In(name).findChild<QWidget*>("qt_scrollarea_viewport")
                          : &In(name),
                      Qt::LeftButton);
    ASSERT_EQ(FocusName(), name);
  }
  void Paste(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  void ExpectHeldIn(const std::string& box, const std::string& message) {
    EXPECT_THAT(Desktop.Messages, testing::ElementsAre(message));
    EXPECT_EQ(FocusName(), box);
    EXPECT_TRUE(Editor->isVisible());
    Desktop.Messages.clear();
  }

  std::vector<CoverText> Texts;
  QPointer<EditCover> Editor;
  QString Chosen;
  std::string AskedFilter;
};

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

TEST_F(CoverEditor, EveryBoxTakesItsBytesAndHoldsTheUserAtOneMore) {
  for (const CoverText& text : Texts) {
    if (text.Bytes == 0 || text.Box == "txtDrow_3") continue;
    SCOPED_TRACE(text.Box);
    DefaultPrintOptions(Run);
    *text.Text = std::string(static_cast<std::size_t>(text.Bytes), 'a');
    OpenEditor();
    Enter(text.Box, text.Tab);
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Desktop.Messages.empty());
    *text.Text += 'b';
    OpenEditor();
    Enter(text.Box, text.Tab);
    Key(Qt::Key_Tab);
    ExpectHeldIn(text.Box, TooLong(text.Bytes));
    EXPECT_EQ(Box(text.Box).Text(), *text.Text) << "nothing is cut here";
  }
}

TEST_F(CoverEditor, DepartmentsAndAddressesTakeTwoLinesOfFiftyBytes) {
  for (const CoverText& text : Texts) {
    if (!text.TwoLines) continue;
    SCOPED_TRACE(text.Box);
    for (const std::string& good :
         {Repeat("a", 60), Repeat("a", 49) + "\r\n" + Repeat("b", 49), std::string("a\r\nb\r\n")}) {
      DefaultPrintOptions(Run);
      *text.Text = good;
      OpenEditor();
      Enter(text.Box, text.Tab);
      Key(Qt::Key_Tab);
      EXPECT_TRUE(Desktop.Messages.empty()) << good;
    }
    *text.Text = "ten bytes.\r\nten bytes.\r\nten bytes.";
    OpenEditor();
    Enter(text.Box, text.Tab);
    Key(Qt::Key_Tab);
    ExpectHeldIn(text.Box, TooManyLines(2));
    *text.Text = Repeat("a", 51) + "\r\n" + Repeat("b", 51);
    OpenEditor();
    Enter(text.Box, text.Tab);
    Key(Qt::Key_Tab);
    ExpectHeldIn(text.Box, TooLong(100));
  }
}

TEST_F(CoverEditor, TheGreetingTakesElevenLinesAndItsBreaksCountAsBytes) {
  const auto lines = [](int count, int width) {
    std::string text = Repeat("a", width);
    for (int i = 1; i < count; ++i) text += "\r\n" + Repeat("a", width);
    return text;
  };
  Run.Options.Greeting = lines(11, 82);
  OpenEditor();
  Enter("txtGreeting", 4);
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Desktop.Messages.empty());
  Run.Options.Greeting = lines(11, 84);
  OpenEditor();
  Enter("txtGreeting", 4);
  Key(Qt::Key_Tab);
  ExpectHeldIn("txtGreeting", TooLong(924));
}

TEST_F(CoverEditor, APastedTwelfthLineFails) {
  OpenEditor();
  Enter("txtGreeting", 4);
  Paste("1\n2\r\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12");
  EXPECT_EQ(Box("txtGreeting").Text(), "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n12");
  Click(In("cmdOK"));
  ExpectHeldIn("txtGreeting", TooManyLines(11));
  EXPECT_EQ(Run.Options.Greeting, "");
}

TEST_F(CoverEditor, EnterStopsWorkingAtTheLinesOfTheBox) {
  struct EnterCase {
    const char* Box;
    int Tab;
    int Breaks;  // that twelve presses make
  };
  for (const EnterCase& one :
       {EnterCase{"txtDrow_1", 0, 1}, EnterCase{"txtDrow_4", 0, 1}, EnterCase{"txtUser1_2", 1, 1},
        EnterCase{"txtUser2_2", 2, 1}, EnterCase{"txtUser3_2", 3, 1}, EnterCase{"txtUser1_4", 1, 12},
        EnterCase{"txtGreeting", 4, 10}}) {
    OpenEditor();
    Enter(one.Box, one.Tab);
    for (int press = 0; press < 12; ++press)
      Key(press % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter,
          press % 3 == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    EXPECT_EQ(Box(one.Box).Text(), Repeat("\r\n", one.Breaks)) << one.Box;
    EXPECT_TRUE(Editor->isVisible());
  }
}

TEST_F(CoverEditor, AMaximumLengthCountsALineBreakAsTwoCharacters) {
  OpenEditor();
  Enter("txtDrow_1", 0);
  QTest::keyClicks(&In("txtDrow_1"), QString(49, 'a'));
  Key(Qt::Key_Return);
  QTest::keyClicks(&In("txtDrow_1"), QString(60, 'b'));
  EXPECT_EQ(Box("txtDrow_1").Text(), Repeat("a", 49) + "\r\n" + Repeat("b", 49));
  Key(Qt::Key_A, Qt::ControlModifier);
  Paste(Repeat("c", 200));
  EXPECT_EQ(Box("txtDrow_1").Text(), Repeat("c", 100));
  Enter("txtDrow_0", 0);
  Paste(Repeat("d", 200));
  EXPECT_EQ(Box("txtDrow_0").Text(), Repeat("d", 50));
}

TEST_F(CoverEditor, JapaneseTextIsCountedInBytes) {
  Run.Page = CodePage(932);
  const QString wide(26, QChar(0x8A66));
  OpenEditor();
  Enter("txtDrow_0", 0);
  Paste(wide.toStdString());
  Key(Qt::Key_Tab);
  ExpectHeldIn("txtDrow_0", TooLong(50));
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Desktop.Messages.empty());
  EXPECT_EQ(FocusName(), "txtDrow_1");
  QInputMethodEvent typed;
  typed.setCommitString(QString(120, QChar(0x8A66)));
  QApplication::sendEvent(&In("txtDrow_1"), &typed);
  EXPECT_EQ(Box("txtDrow_1").Text(), QString(100, QChar(0x8A66)).toStdString());
  Key(Qt::Key_Tab);
  ExpectHeldIn("txtDrow_1", TooLong(100));
}

TEST_F(CoverEditor, ABadFieldLetsTheUserCancelInEveryWay) {
  for (int way = 0; way < 4; ++way) {
    Run.Options.DrowCorp = Repeat("a", 51);
    OpenEditor();
    Enter("txtDrow_0", 0);
    if (way == 0) Click(In("cmdCancel"));
    if (way == 1) Key(Qt::Key_Escape);
    if (way == 2) Editor->close();
    if (way == 3) Key(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Editor->isVisible(); })) << way;
    EXPECT_TRUE(Desktop.Messages.empty()) << way;
    EXPECT_EQ(Run.Options.DrowCorp, Repeat("a", 51));
  }
}

TEST_F(CoverEditor, ABadFieldHoldsTheUserInEveryOtherWayWithOneMessage) {
  for (int way = 0; way < 6; ++way) {
    SCOPED_TRACE(way);
    Run.Options.DrowCorp = Repeat("a", 51);
    OpenEditor();
    Enter("txtDrow_0", 0);
    if (way == 0) Click(In("cmdOK"));
    if (way == 1) Key(Qt::Key_Return);
    if (way == 2) Key(Qt::Key_O, Qt::AltModifier);
    if (way == 3) ClickTab(Tabs(), 2);
    if (way == 4) Key(Qt::Key_Tab, Qt::ControlModifier);
    if (way == 5) QTest::mouseClick(&In("txtDrow_2"), Qt::LeftButton);
    QApplication::processEvents();
    ExpectHeldIn("txtDrow_0", TooLong(50));
    EXPECT_EQ(Tabs().CurrentTab(), 0);
  }
}

TEST_F(CoverEditor, OkFindsABadFieldOnAnotherTabAndStoresNothing) {
  Run.Options.User[1].Corp = Repeat("a", 51);
  OpenEditor();
  Box("txtDrow_0").SetText("new");
  Click(In("cmdOK"));
  ExpectHeldIn("txtUser2_1", TooLong(50));
  EXPECT_EQ(Tabs().CurrentTab(), 2);
  EXPECT_EQ(Run.Options.DrowCorp, "");
}

TEST_F(CoverEditor, TheHiddenZipCodeIsStillChecked) {
  Run.Options.DrowZip = Repeat("9", 51);
  OpenEditor();
  EXPECT_FALSE(In("txtDrow_3").isVisible());
  EXPECT_FALSE(In("Label1_3").isVisible());
  ClickTab(Tabs(), 4);
  Click(In("cmdOK"));
  EXPECT_THAT(Desktop.Messages, testing::ElementsAre(TooLong(50)));
  EXPECT_EQ(Tabs().CurrentTab(), 0);
  EXPECT_TRUE(Editor->isVisible());
  EXPECT_EQ(Run.Options.DrowZip, Repeat("9", 51));
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

TEST_F(CoverEditor, TheFileDialogSuppliesTheLogoAndItsCancelLeavesIt) {
  Run.Options.DrowLogo = "old.bmp";
  OpenEditor();
  Click(In("cmdConpare"));
  EXPECT_EQ(Box("txtDrow_8").Text(), "old.bmp");
  EXPECT_EQ(AskedFilter,
            "All Images of |*.BMP;*.DIB;*.JPG;*.GIF;*.WMF;*.EMF;*.ICO;*.CUR|BMP Image (*.BMP)|*.BMP|DIB "
            "Image (*.DIB)|*.DIB|"
            "JPG Image (*.JPG)|*.JPG|GIF Image (*.GIF)|*.GIF|WMF Image (*.WMF)|*.WMF|EMF Image (*.EMF)|*.EMF|"
            "ICO Image (*.ICO)|*.ICO|CUR Image (*.CUR)|*.CUR");
  Chosen = "/pictures/new.bmp";
  Click(In("cmdConpare"));
  EXPECT_EQ(Box("txtDrow_8").Text(), "/pictures/new.bmp");
  EXPECT_EQ(Run.Options.DrowLogo, "old.bmp");
  Enter("txtDrow_8", 0);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box("txtDrow_8").Text(), "old.bmp");
}

TEST(FileFilter, OffersEachPatternInBothCases) {
  EXPECT_EQ(ToolkitFilter("All Images of |*.BMP;*.GIF|BMP Image (*.BMP)|*.BMP").toStdString(),
            "All Images of (*.BMP *.bmp *.GIF *.gif);;BMP Image (*.BMP *.bmp)");
}

TEST_F(CoverEditor, AFileDroppedOnThePathReplacesIt) {
  Run.Options.DrowLogo = "old.bmp";
  OpenEditor();
  QMimeData dragged;
  dragged.setUrls({QUrl("https://example.invalid/x.bmp"), QUrl::fromLocalFile("/pictures/my logo.gif")});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QApplication::sendEvent(&In("txtDrow_8"), &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QApplication::sendEvent(&In("txtDrow_8"), &drop);
  EXPECT_TRUE(drop.isAccepted());
  EXPECT_EQ(Box("txtDrow_8").Text(), "/pictures/my logo.gif");
}

TEST_F(CoverEditor, TheLogoIsShownBesideItsPath) {
  QImage logo(40, 20, QImage::Format_RGB32);
  logo.fill(Qt::red);
  ASSERT_TRUE(logo.save(QString::fromStdString(Folder() + "/logo.bmp")));
  WriteFile("letter.bmp", "no picture");
  OpenEditor();
  auto& preview = dynamic_cast<LogoPreview&>(In("imgLogo"));
  EXPECT_EQ(preview.Words(), "No logo");
  Box("txtDrow_8").SetText(Folder() + "/missing.bmp");
  EXPECT_EQ(preview.Words(), "No such file");
  Box("txtDrow_8").SetText(Folder() + "/letter.bmp");
  EXPECT_TRUE(preview.Words().startsWith("Not shown")) << preview.Words().toStdString();
  Box("txtDrow_8").SetText(Folder() + "\\logo.bmp");
  EXPECT_EQ(preview.Words(), "");
  const QImage seen = preview.grab().toImage();
  EXPECT_EQ(seen.pixelColor(seen.width() / 2, seen.height() / 2), QColor(Qt::red));
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

TEST_F(CoverEditor, CaptionsReadAsTold) {
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
