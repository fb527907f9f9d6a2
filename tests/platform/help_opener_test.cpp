// F1 opens the host's help file.
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

  Q_SLOT void Open(const QUrl& url) { Opened.append(QString::fromLatin1(url.toEncoded())); }
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

TEST_F(Help, OpensAFileWhoseNameIsNoText) {
  help_.SetHelpFile("/opt/host/h\xFCls \xF0\x9F \xC3\xA4#1%41.html");
  help_.SetContext(7);
  PressF1();
  EXPECT_EQ(browser_.Opened, QStringList("file:///opt/host/h%FCls%20%F0%9F%20%C3%A4%231%2541.html#7"));
}

TEST_F(Help, OpensAFileWithAnyCharacterInItsName) {
  help_.SetHelpFile("/opt/host\\h\xC3\xBClp #1 50%.html");
  PressF1();
  EXPECT_EQ(browser_.Opened, QStringList("file:///opt/host/h%C3%BClp%20%231%2050%25.html#0"));
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
