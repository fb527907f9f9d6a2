// "Printing Item Setting": the one window that every run passes through.
#pragma once

#include <QComboBox>
#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/controls/controls.h"
#include "dialogs/controls/fitted_dialog.h"
#include "dialogs/pages/item_page.h"
#include "session/function_list.h"

namespace tarvis {

struct PrintRun;
class CoverGroup;
class FocusGuard;

// What the dialog needs from the program around it.
struct PrintSettingServices {
  // Called once, after the user has confirmed, the options are written and the dialog is hidden.
  std::function<void()> ShowPrintPreview;
  // Sets the application's help file and the context number of this dialog; only if the file exists.
  std::function<void(const std::string& helpFile, std::int32_t helpContextId)> SetHelp;
};

// Edits the options of the run in place, at each click and change; there is nothing to collect. Building it
// is its load: an unknown edition, version or mode, and a program table that can't be read, end the run as
// numbered failures; options that no control can show throw RunTimeFailure. Every handling of a click may
// throw it, too, through the event loop to the application object.
//
// Create it with new: it shows itself, modeless. When the user confirms it deletes itself; every other way
// out of it ends the run.
class PrintSetting : public FittedDialog {
  Q_OBJECT

 public:
  PrintSetting(PrintRun& run, PrintSettingServices services);

  ~PrintSetting() override;

  // Esc and the window's close box: as cmdCancel.
  void reject() override;

 protected:
  TabControl& FrontTabs() const override;

 private:
  void BuildFunctionGroup();
  void BuildColorGroup();
  void BuildButtons();
  void Connect();

  void LoadDialog();
  void ShowWithPage();
  void FillFunctionList();
  void SelectByMode();

  void SelectFunction(int index);
  // By the user.
  void FunctionChosen();
  void FunctionClicked();
  bool RefuseToLeave(const QWidget& left, const QWidget& entered);
  void SelectPage(PageId id);
  void ShowPage(ItemPage& page);

  void EditClicked();
  void OkClicked();

  PrintRun& run_;
  PrintSettingServices services_;
  bool loaded_ = false;
  CoverGroup* cover_;

  QComboBox* cmbFunc_ = nullptr;
  std::span<const FunctionEntry> entries_;
  std::vector<ItemPage*> pages_;  // by PageId
  FocusGuard* guard_ = nullptr;
  ItemPage* shown_ = nullptr;

  std::array<OptionButton*, 2> optColor_{};
  QPushButton* cmdOK_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
};

}  // namespace tarvis
