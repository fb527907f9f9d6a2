// Tools on computers with a touch screen.
#include "preview/window/finger_size.h"

#include <QPointingDevice>
#include <QToolBar>

#include "preview/window_fixture.h"

namespace tarvis {
namespace {

using Fingers = WindowTest;

TEST_F(Fingers, FindToolsOf36PixelsOnATouchScreen) {
  const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
  ASSERT_TRUE(HasTouchScreen());
  OpenTable(3);
  int seen = 0;
  for (const QToolButton* button : Find<QToolBar>("toolbar").findChildren<QToolButton*>()) {
    if (!button->isVisible()) continue;
    ++seen;
    EXPECT_GE(button->width(), 36) << button->objectName().toStdString();
    EXPECT_GE(button->height(), 36) << button->objectName().toStdString();
  }
  EXPECT_GE(seen, 10);
}

}  // namespace
}  // namespace tarvis
