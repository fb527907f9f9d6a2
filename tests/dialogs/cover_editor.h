// The editor of the cover letter, driven by the events that a user makes.
#pragma once

#include <QClipboard>

#include "dialogs/EditCover.h"
#include "dialogs/dialog_run.h"

namespace tarvis {

inline std::string TooLong(int limit) {
  return "Input Error|Try with  Less Characters.  Up to " + std::to_string(limit) +
         " Characters can be Inputted.";
}
inline std::string TooManyLines(int lines) {
  return "Input Error|Try with Less Lines. Up to " + std::to_string(lines) + "\nLines can be Inputted.";
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
    Editor = new EditCover(Run, nullptr,
                           {.Choose =
                                [this](QWidget*, const QString& filter, const std::string& present) {
                                  AskedFilter = filter.toStdString();
                                  AskedFrom = present;
                                  return Chosen;
                                },
                            .Read = Read});
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
  std::string AskedFrom;
  PictureReader Read = ReadPicture;
};

}  // namespace tarvis
