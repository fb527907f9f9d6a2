// "Cover": edits the texts of the cover letter.
#pragma once

#include <string>
#include <vector>

#include "dialogs/controls/controls.h"
#include "dialogs/controls/file_choice.h"
#include "dialogs/controls/fitted_dialog.h"
#include "dialogs/controls/logo_preview.h"
#include "dialogs/controls/tab_control.h"
#include "dialogs/controls/text_box.h"

namespace tarvis {

struct PrintRun;
class FocusGuard;
class MemoBox;
class PathBox;

// What the editor asks of the system around it.
struct EditCoverServices {
  FileChoice Choose = ChooseFile;
  PictureReader Read = ReadPicture;
};

// Works on a copy: filled from the options when it is built, and nothing goes back until every field has
// passed its check and the user confirms. A field that fails its check keeps the focus until it passes or the
// user cancels.
class EditCover : public FittedDialog {
  Q_OBJECT

 public:
  EditCover(PrintRun& run, QWidget* parent, EditCoverServices services = {});
  ~EditCover() override;

 protected:
  TabControl& FrontTabs() const override { return *tabs_; }

 private:
  // One text of the letter, with its box and its limits.
  struct Field {
    InputBox* Box;
    QWidget* Control;  // the same box
    int Tab;
    std::string* Stored;
    int ByteLimit;  // 0 for none
    int MaxLines;   // 0 for none
    int LineWidth;  // bytes
  };
  struct FieldPlan;

  void BuildSubmitterTab();
  void BuildLogo(QWidget* tab);
  void BuildAddresseeTab(int block);
  void BuildGreetingTab();
  void BuildButtons();
  void AddField(const FieldPlan& plan, const char* family, const char* labelFamily, int tab,
                std::string& stored);

  void Load();
  bool Check(const Field& field);
  bool RefuseToLeave(const QWidget& left, const QWidget& entered);
  void OkClicked();
  void ChooseLogo();
  void ShowLogo();

  PrintRun& run_;
  EditCoverServices services_;
  TabControl* tabs_ = nullptr;
  std::vector<Field> fields_;  // in the order in which they are checked and stored
  PathBox* logo_ = nullptr;
  LogoPreview* preview_ = nullptr;
  QLabel* lblGreeting_ = nullptr;
  QPushButton* cmdOK_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
  FocusGuard* guard_ = nullptr;
};

}  // namespace tarvis
