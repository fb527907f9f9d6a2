#include "preview/preview_window.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "preview/document_builder.h"
#include "preview/page_view.h"

namespace tarvis {
namespace {

class Window : public testing::Test {
 protected:
  void Open(std::shared_ptr<const Document> document) {
    PreviewSetup setup;
    setup.Tools = {{"Editing of the Printing Items", 999}};
    window_ = std::make_unique<PreviewWindow>(std::move(document), setup);
    window_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  void OpenTable(int pages) { Open(DocumentBuilder().TablePages(pages).Build()); }
  template <typename Widget>
  Widget& Find(const char* name) {
    auto* widget = window_->findChild<Widget*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
  }
  void Click(const char* name) { QTest::mouseClick(&Find<QToolButton>(name), Qt::LeftButton); }
  PageView& View() { return window_->View(); }

  std::unique_ptr<PreviewWindow> window_;
};

TEST_F(Window, caption_place_and_size_are_those_of_a_print_preview) {
  OpenTable(1);
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("Print Preview"));
  const QSize screen = window_->screen()->availableSize();
  EXPECT_EQ(window_->width(), std::min(1067, screen.width()));
  EXPECT_EQ(window_->height(), std::min(645, screen.height()));
}

TEST_F(Window, the_added_tool_and_close_tell_their_numbers) {
  OpenTable(1);
  const QSignalSpy used(window_.get(), &PreviewWindow::toolUsed);
  Click("tool999Button");
  Click("closeButton");
  ASSERT_EQ(used.count(), 2);
  EXPECT_EQ(used.at(0).at(0).toInt(), 999);
  EXPECT_EQ(used.at(1).at(0).toInt(), 5113);
}

TEST_F(Window, closing_from_code_is_not_told_as_closed_by_the_user) {
  OpenTable(1);
  const QSignalSpy closed(window_.get(), &PreviewWindow::closedByUser);
  window_->close();
  EXPECT_EQ(closed.count(), 0);
}

TEST_F(Window, page_box_goes_to_the_page_typed) {
  OpenTable(20);
  QTest::keyClick(window_.get(), Qt::Key_G, Qt::ControlModifier);
  QTest::keyClicks(&Find<QLineEdit>("pageBox"), QStringLiteral("7"));
  QTest::keyClick(&Find<QLineEdit>("pageBox"), Qt::Key_Return);
  EXPECT_EQ(View().CurrentPage(), 6);
  EXPECT_EQ(Find<QLineEdit>("pageBox").text(), QStringLiteral("7"));
}

}  // namespace
}  // namespace tarvis
