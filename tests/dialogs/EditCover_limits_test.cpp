// How long the texts of the cover letter may be, and what happens at one byte or line more.
#include <QInputMethodEvent>

#include "dialogs/cover_editor.h"

namespace tarvis {
namespace {

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
  Run.CodePage = CodePage(932);
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

// An input method gives letter and tone as one character, the code page has them as two bytes.
TEST_F(CoverEditor, VietnameseTextIsCountedInBytesOfLettersAndTones) {
  Run.CodePage = CodePage(1258);
  OpenEditor();
  Enter("txtDrow_0", 0);
  QInputMethodEvent typed;
  typed.setCommitString(QString(26, QChar(0x1EBF)));
  QApplication::sendEvent(&In("txtDrow_0"), &typed);
  Key(Qt::Key_Tab);
  ExpectHeldIn("txtDrow_0", TooLong(50));
  Key(Qt::Key_A, Qt::ControlModifier);
  Paste(QString(25, QChar(0x1EBF)).toStdString());
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Desktop.Messages.empty());
  EXPECT_EQ(FocusName(), "txtDrow_1");
  EXPECT_EQ(Box("txtDrow_0").Text(), QString(25, QChar(0x1EBF)).toStdString());
}

TEST_F(CoverEditor, TextsOfAllScriptsAreKeptAsEntered) {
  const struct {
    int Page;
    const char* Text;
  } entered[] = {
      {1255, "דוד כהן Pn100"}, {1256, "أحمد السالم لا"}, {874, "น้ำหนักที่กำหนด"}, {1258, "Nguyễn Thị"}};
  for (const auto& each : entered) {
    DefaultPrintOptions(Run);
    Run.CodePage = CodePage(each.Page);
    OpenEditor();
    Enter("txtDrow_0", 0);
    Paste(each.Text);
    Enter("txtGreeting", 4);
    Paste(each.Text);
    Click(In("cmdOK"));
    EXPECT_EQ(Run.Options.DrowCorp, each.Text);
    EXPECT_EQ(Run.Options.Greeting, each.Text);
  }
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

}  // namespace
}  // namespace tarvis
