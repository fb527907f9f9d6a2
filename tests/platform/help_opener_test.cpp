#include "platform/help_opener.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QLineEdit>
#include <QTest>

namespace tarvis {
namespace {

// Takes the place of the desktop's browser.
class Browser : public QObject {
  Q_OBJECT
 public:
  Browser() { QDesktopServices::setUrlHandler("file", this, "Open"); }
  ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }
  QStringList Opened;

  Q_SLOT void Open(const QUrl& url) { Opened.append(url.toString()); }
};

class Help : public testing::Test {
 protected:
  void SetUp() override { qApp->installEventFilter(&help_); }
  void PressF1() { QTest::keyClick(&window_, Qt::Key_F1); }

  HelpOpener help_;
  Browser browser_;
  QLineEdit window_;
};

TEST_F(Help, OpensAnHtmlFileAtTheAnchorOfTheContextNumber) {
  help_.SetHelpFile("/opt/host/help\\host.html");
  help_.SetContext(1200);
  PressF1();
  EXPECT_EQ(browser_.Opened, QStringList("file:///opt/host/help/host.html#1200"));
}

TEST_F(Help, OpensAnyOtherKindWithTheDesktopsProgram) {
  help_.SetHelpFile("/opt/host/help\\host.chm");
  help_.SetContext(1200);
  PressF1();
  EXPECT_EQ(browser_.Opened, QStringList("file:///opt/host/help/host.chm"));
}

TEST_F(Help, IsNotThereWithoutAHelpFile) {
  PressF1();
  EXPECT_TRUE(browser_.Opened.isEmpty());
}

TEST_F(Help, IsGoneOnceTheHelpFileIsTakenAway) {
  help_.SetHelpFile("/opt/host/help\\host.html");
  help_.SetHelpFile("");
  PressF1();
  EXPECT_TRUE(browser_.Opened.isEmpty());
}

}  // namespace
}  // namespace tarvis

#include "help_opener_test.moc"
