// A run with the dialog open, driven by the events that a user makes.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QPointer>
#include <QTest>
#include <memory>
#include <string>

#include "dialogs/PrintSetting.h"
#include "dialogs/box_desktop.h"
#include "dialogs/test_application.h"
#include "printfiles/print_options_file.h"
#include "support/repeat.h"
#include "support/temp_folder.h"
#include "support/test_run.h"

namespace tarvis {

class DialogRun : public testing::Test, protected TestRunOn<BoxDesktop> {
 protected:
  using TestRunOn::Run;

  DialogRun() {
    Run.Session.SystemFolder = Folder() + "\\";
    Run.Session.TempFolder = Folder() + "\\";
    DefaultPrintOptions(Run);
  }
  ~DialogRun() override {
    EXPECT_FALSE(TestApplication::Instance().HasThrown()) << "a handler threw and nobody looked";
    try {
      TestApplication::Instance().RethrowWhatHandlersThrew();
    } catch (...) {
    }
    delete Dialog.data();
  }

  std::string Folder() const { return folder_.Path().string(); }
  void WriteFile(const std::string& name, const std::string& content) const { folder_.Write(name, content); }
  std::string OptionsFile() const { return folder_.Read("PrintOption.ToT"); }
  bool OptionsFileExists() const { return folder_.Has("PrintOption.ToT"); }

  void Open(std::int16_t edition, const std::string& version, const std::string& mode) {
    Run.Session.HostEdition = edition;
    Run.Session.HostVersion = version;
    Run.Session.Mode = ModeOf(mode);
    Reopen();
  }
  void Reopen() {
    delete Dialog.data();
    Dialog = new PrintSetting(
        Run, {.ShowPrintPreview = [this] { PreviewDialogVisible.push_back(Dialog && Dialog->isVisible()); },
              .SetHelp = [this](const std::string& file,
                                std::int32_t context) { Help = file + "#" + std::to_string(context); }});
    Dialog->show();
    Dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog));
  }

  // The control by its object name, in the page `page` or anywhere in the dialog.
  template <typename Control = QWidget>
  Control& Find(const char* name, const char* page = nullptr) {
    QWidget* where = page == nullptr ? Dialog.data() : Dialog->findChild<QWidget*>(QString::fromLatin1(page));
    Control* control = where == nullptr ? nullptr : where->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *control;
  }
  TickBox& Check(const char* name, const char* page = nullptr) { return Find<TickBox>(name, page); }
  ItemPage& Page(const char* name) { return Find<ItemPage>(name); }

  // The one item page that the user sees, or all of them if that isn't one.
  std::string ShownPages() {
    std::string shown;
    for (const ItemPage* page : Dialog->findChildren<ItemPage*>()) {
      if (page->isVisible()) shown += (shown.empty() ? "" : ",") + page->objectName().toStdString();
    }
    return shown;
  }

  static void Click(QWidget& control) {
    ASSERT_TRUE(control.isVisible()) << control.objectName().toStdString();
    // Check boxes and option buttons are hit near their mark.
    const bool marked =
        qobject_cast<QCheckBox*>(&control) != nullptr || qobject_cast<QRadioButton*>(&control) != nullptr;
    const QPoint spot = marked ? QPoint(8, control.height() / 2) : control.rect().center();
    QTest::mouseClick(&control, Qt::LeftButton, {}, spot);
  }
  static void ClickTab(const TabControl& tabs, int index) {
    QTest::mouseClick(tabs.Bar(), Qt::LeftButton, {}, tabs.Bar()->tabRect(index).center());
  }
  // Chooses an entry of the function list with the keyboard.
  void ChooseFunction(int index) {
    QComboBox& list = Find<QComboBox>("cmbFunc");
    list.setFocus();
    while (list.currentIndex() < index) QTest::keyClick(&list, Qt::Key_Down);
    while (list.currentIndex() > index) QTest::keyClick(&list, Qt::Key_Up);
  }
  // Sends a key to whatever has the focus.
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers, QWidget& receiver) {
    QTest::keyClick(&receiver, key, modifiers);
  }
  static std::string FocusName() {
    const QWidget* focus = QApplication::focusWidget();
    return focus == nullptr ? "" : focus->objectName().toStdString();
  }
  static void ExpectRunEnded() {
    EXPECT_THROW(TestApplication::Instance().RethrowWhatHandlersThrew(), RunEnded);
  }
  static void ExpectRunTimeFailure(const std::string& part) {
    try {
      TestApplication::Instance().RethrowWhatHandlersThrew();
      FAIL() << "no failure";
    } catch (const RunTimeFailure& failure) {
      EXPECT_NE(std::string(failure.what()).find(part), std::string::npos) << failure.what();
    }
  }

  QPointer<PrintSetting> Dialog;
  std::vector<bool> PreviewDialogVisible;  // one entry for each call of the preview
  std::string Help;

 private:
  TempFolder folder_;
};

inline constexpr char TitleTooLong[] =
    "Input Error|Try with  Less Characters.  Up to 40 Characters can be Inputted.";

}  // namespace tarvis
