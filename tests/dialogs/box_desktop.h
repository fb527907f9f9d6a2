// A desktop whose messages come up as real boxes, if a test wants them.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <string>

#include "support/fake_desktop.h"

namespace tarvis {

class BoxDesktop : public FakeDesktop {
 public:
  // From now on each message is shown in a box, which the user answers with the Enter key once it has the
  // focus.
  void ShowBoxes() { showsBoxes_ = true; }

  void ShowMessage(const std::string& title, const std::string& text) override {
    FakeDesktop::ShowMessage(title, text);
    if (!showsBoxes_) return;
    QWidget* before = QApplication::activeWindow();
    QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(title), QString::fromStdString(text),
                    QMessageBox::Ok, QApplication::activeWindow());
    QTimer::singleShot(0, &box, [&box] {
      box.activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
      QTest::keyClick(&box, Qt::Key_Return);
    });
    box.exec();
    // As a window manager does, some time later: the platform of the tests has none.
    if (before != nullptr) QTimer::singleShot(0, before, [before] { before->activateWindow(); });
  }

 private:
  bool showsBoxes_ = false;
};

}  // namespace tarvis
