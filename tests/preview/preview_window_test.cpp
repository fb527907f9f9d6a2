// The window "Print Preview": tools, menus, closing.
#include "preview/window/preview_window.h"

#include <QtTest/qtestspontaneevent.h>

#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>

#include "preview/window_fixture.h"

namespace tarvis {
namespace {

using Window = WindowTest;

TEST_F(Window, CaptionAndSizeAreThoseOfAPrintPreview) {
  OpenTable(1);
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("Print Preview"));
  const QSize screen = window_->screen()->availableSize();
  EXPECT_EQ(window_->width(), std::min(1067, screen.width()));
  EXPECT_EQ(window_->height(), std::min(645, screen.height()));
}

TEST_F(Window, ContentsPaneIsLeftOfThePages2300TwipsWide) {
  OpenTable(1);
  auto& pane = Find<QTabWidget>("sidePane");
  EXPECT_NEAR(pane.width(), 153, 1);
  EXPECT_LT(pane.mapToGlobal(QPoint()).x(), View().mapToGlobal(QPoint()).x());
}

TEST_F(Window, ContentsPaneGrowsWithTheFontOfTheDesktop) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPixelSize(24);
  QApplication::setFont(large);
  OpenTable(1);
  EXPECT_NEAR(Find<QTabWidget>("sidePane").width(), 2 * 153, 2);
  QApplication::setFont(before);
}

TEST_F(Window, F7HidesAndShowsTheSidePane) {
  OpenTable(1);
  Press(Qt::Key_F7);
  EXPECT_FALSE(Find<QTabWidget>("sidePane").isVisible());
  Press(Qt::Key_F7);
  EXPECT_TRUE(Find<QTabWidget>("sidePane").isVisible());
}

TEST_F(Window, TheAddedToolShowsItsTextAndSendsItsNumber) {
  OpenTable(1);
  const QSignalSpy used(window_.get(), &PreviewWindow::toolUsed);
  EXPECT_EQ(Find<QToolButton>("tool999Button").text(), QStringLiteral("Editing of the Printing Items"));
  Click("tool999Button");
  ASSERT_EQ(used.count(), 1);
  EXPECT_EQ(used.at(0).at(0).toInt(), 999);
}

TEST_F(Window, TheAddedToolHasAnIconAndAKeyThatItsTipNames) {
  OpenTable(1);
  const auto& button = Find<QToolButton>("tool999Button");
  EXPECT_FALSE(button.icon().isNull());
  EXPECT_EQ(button.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
  EXPECT_EQ(button.toolTip(), QStringLiteral("Editing of the Printing Items (Ctrl+E)"));
  const QSignalSpy used(window_.get(), &PreviewWindow::toolUsed);
  Press(Qt::Key_E, Qt::ControlModifier);
  ASSERT_EQ(used.count(), 1);
  EXPECT_EQ(used.at(0).at(0).toInt(), 999);
}

TEST_F(Window, ShiftF10OpensTheMenuOfAllCommands) {
  OpenTable(1);
  QStringList shown;
  QTimer::singleShot(0, window_.get(), [&] {
    auto* menu = window_->findChild<QMenu*>(QStringLiteral("contextMenu"));
    ASSERT_NE(menu, nullptr);
    for (const QAction* action : menu->actions()) shown += action->text();
    menu->close();
  });
  Press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(shown.contains(QStringLiteral("Editing of the Printing Items")));
  EXPECT_TRUE(shown.contains(QStringLiteral("&Print…")));
}

TEST_F(Window, CloseSends5113ByToolAndByKey) {
  OpenTable(1);
  const QSignalSpy used(window_.get(), &PreviewWindow::toolUsed);
  Click("closeButton");
  Press(Qt::Key_W, Qt::ControlModifier);
  ASSERT_EQ(used.count(), 2);
  EXPECT_EQ(used.at(0).at(0).toInt(), 5113);
  EXPECT_EQ(used.at(1).at(0).toInt(), 5113);
}

TEST_F(Window, ClosedByTheUserIsSentOnce) {
  OpenTable(1);
  const QSignalSpy closed(window_.get(), &PreviewWindow::closedByUser);
  QCloseEvent event;
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(window_.get(), &event);
  EXPECT_EQ(closed.count(), 1);
}

TEST_F(Window, ClosingFromCodeIsNotSentAsClosedByTheUser) {
  OpenTable(1);
  const QSignalSpy closed(window_.get(), &PreviewWindow::closedByUser);
  window_->close();
  EXPECT_EQ(closed.count(), 0);
}

TEST_F(Window, EveryToolHasAnIconOrTextATooltipWithItsKeyAndAnAccessibleName) {
  OpenTable(3);
  for (const CommandEntry& entry : CommandTable()) {
    if (entry.Where != Shown::Toolbar) continue;
    auto& button = Find<QToolButton>((std::string(entry.Name) + "Button").c_str());
    EXPECT_FALSE(button.icon().isNull()) << entry.Name;
    EXPECT_FALSE(button.accessibleName().isEmpty()) << entry.Name;
    const QString key = window_->ActionOf(entry.Id)->shortcut().toString(QKeySequence::NativeText);
    EXPECT_FALSE(key.isEmpty()) << entry.Name;
    EXPECT_TRUE(button.toolTip().contains(key)) << entry.Name;
  }
}

TEST_F(Window, TheContextMenuHoldsEveryCommandAndTheAddedTool) {
  OpenTable(3);
  QStringList names;
  QTimer::singleShot(0, window_.get(), [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const QAction* action : menu->actions()) names.append(action->objectName());
    menu->close();
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(200, 200),
                          View().viewport()->mapToGlobal(QPoint(200, 200)));
  QApplication::sendEvent(View().viewport(), &event);
  for (const CommandEntry& entry : CommandTable())
    EXPECT_TRUE(names.contains(QString::fromLatin1(entry.Name)));
  EXPECT_TRUE(names.contains(QStringLiteral("tool999")));
}

TEST_F(Window, ShortcutsAreDistinct) {
  OpenTable(1);
  QStringList keys;
  for (const CommandEntry& entry : CommandTable()) {
    for (const QKeySequence& key : window_->ActionOf(entry.Id)->shortcuts()) keys.append(key.toString());
  }
  EXPECT_EQ(keys.removeDuplicates(), 0);
}

TEST_F(Window, ADocumentWithoutPagesCanBeLookedAtAndClosed) {
  Open(DocumentBuilder().Build());
  Press(Qt::Key_End);
  Press(Qt::Key_PageDown);
  Press(Qt::Key_2, Qt::ControlModifier);
  Press(Qt::Key_A, Qt::ControlModifier);
  SearchFor("x");
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("not found"));
  EXPECT_EQ(Find<QLabel>("pageTotal").text(), QStringLiteral("/ 0"));
}

TEST_F(Window, IconsTakeTheTextColourOfTheDesktop) {
  OpenTable(1);
  const QPalette before = QApplication::palette();
  const auto darkest = [&] {
    const QImage icon = Find<QToolButton>("closeButton").icon().pixmap(32).toImage();
    return icon.pixelColor(icon.width() / 2, icon.height() / 2);
  };
  QPalette dark = before;
  dark.setColor(QPalette::ButtonText, Qt::white);
  QApplication::setPalette(dark);
  EXPECT_GT(darkest().lightness(), 200);
  dark.setColor(QPalette::ButtonText, Qt::black);
  QApplication::setPalette(dark);
  EXPECT_LT(darkest().lightness(), 50);
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tarvis
