// Dialogs on screens of other sizes and with other fonts.
#include "dialogs/controls/fitted_dialog.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "dialogs/cover_editor.h"

namespace tarvis {
namespace {

constexpr int HugeFont = 22;  // pixels; one dialog is higher than the test's screen then, the other one wider

class FittedDialogs : public CoverEditor {
 protected:
  ~FittedDialogs() override { SetUserFont(DrawnFontPixels); }

  static void ExpectOnScreen(const QWidget& window) {
    const QSize room = window.screen()->availableSize();
    EXPECT_LE(window.height(), room.height());
    EXPECT_LE(window.width(), room.width());
  }
  // Within the part that scrolls, or within the dialog if it isn't there.
  static bool IsWhollySeen(const QWidget& control) {
    const auto* scrolled = control.window()->findChild<QScrollArea*>("upperPart")->viewport();
    const QWidget* seen = scrolled->isAncestorOf(&control) ? scrolled : control.window();
    return seen->rect().contains(QRect(control.mapTo(seen, QPoint()), control.size()));
  }
  static void ExpectTabShowsWhatHasTheFocus(const QWidget& window, int steps) {
    for (int step = 0; step < steps; ++step) {
      const QWidget* focus = QApplication::focusWidget();
      ASSERT_TRUE(window.isAncestorOf(focus));
      EXPECT_TRUE(IsWhollySeen(*focus)) << focus->objectName().toStdString();
      Key(Qt::Key_Tab);
    }
  }
};

TEST_F(FittedDialogs, HaveTheirDesignedSizeInTheFontOfTheDesign) {
  Open(2, "", "User");
  EXPECT_EQ(Dialog->size(), QSize(369, 542));
  EXPECT_EQ(Dialog->font().pixelSize(), 11);
  OpenEditor();
  EXPECT_EQ(Editor->size(), QSize(567, 360));
}

TEST_F(FittedDialogs, GrowAsAWholeWithTheUsersFont) {
  SetUserFont(15);
  OpenEditor();
  EXPECT_EQ(Editor->size(), QSize(773, 491));
  EXPECT_EQ(In("txtDrow_0").geometry(), QRect(136, 50, 419, 29));
  EXPECT_EQ(In("txtDrow_0").font().pixelSize(), 15);
  EXPECT_EQ(Tabs().Bar()->height(), 30);
  EXPECT_EQ(In("cmdOK").geometry(), QRect(213, 445, 132, 34));
}

TEST_F(FittedDialogs, FollowAFontGivenInPoints) {
  QFont user = QApplication::font();
  user.setPointSizeF(12);
  QApplication::setFont(user);
  Open(2, "", "User");
  EXPECT_EQ(Dialog->font().pixelSize(), QFontInfo(user).pixelSize());
  EXPECT_EQ(Find("Frame1").width(),
            Pixels(120 + 5300, QFontInfo(user).pixelSize()) - Pixels(120, QFontInfo(user).pixelSize()));
}

TEST_F(FittedDialogs, KeepTheirButtonsInSightOnALowScreen) {
  SetUserFont(HugeFont);
  Open(2, "", "User");
  ExpectOnScreen(*Dialog);
  EXPECT_TRUE(IsWhollySeen(Find("cmdOK")));
  EXPECT_TRUE(IsWhollySeen(Find("cmdCancel")));
  Click(Find("cmdOK"));
  EXPECT_EQ(PreviewDialogVisible.size(), 1u);
  OpenEditor();
  ExpectOnScreen(*Editor);
  EXPECT_TRUE(IsWhollySeen(In("cmdOK")));
}

TEST_F(FittedDialogs, ScrollInOneDirectionOnlyWhereTheScreenIsWideEnough) {
  SetUserFont(HugeFont);
  Open(2, "", "User");
  const auto* upper = Dialog->findChild<QScrollArea*>("upperPart");
  EXPECT_TRUE(upper->verticalScrollBar()->isVisible());
  EXPECT_FALSE(upper->horizontalScrollBar()->isVisible());
}

TEST_F(FittedDialogs, ScrollToWhatHasTheFocus) {
  SetUserFont(HugeFont);
  Run.Options.Cover = 1;
  Open(2, "", "PrnSetting");
  Find("chkCover").setFocus();
  ExpectTabShowsWhatHasTheFocus(*Dialog, 18);
}

TEST_F(FittedDialogs, ShowNoScrollBarWhereTheScreenIsHighEnough) {
  Open(2, "", "User");
  for (const QScrollBar* bar : Dialog->findChildren<QScrollBar*>()) {
    const bool oursAndSeen =
        bar->isVisible() && bar->parentWidget()->parentWidget()->objectName() == "upperPart";
    EXPECT_FALSE(oursAndSeen);
  }
}

}  // namespace
}  // namespace tarvis
