#include "dialogs/PrintSetting.h"

#include <QSignalBlocker>
#include <algorithm>
#include <cassert>
#include <utility>

#include "dialogs/EditCover.h"
#include "dialogs/controls/choice.h"
#include "dialogs/controls/focus_guard.h"
#include "dialogs/controls/help_context.h"
#include "dialogs/cover_group.h"
#include "dialogs/pages/item_pages.h"
#include "printfiles/print_options_file.h"
#include "run/failures.h"
#include "run/print_run.h"
#include "session/setting_rules.h"
#include "text/native_path.h"

namespace tarvis {

namespace {

constexpr FittedDialog::Plan SettingPlan{.Width = 5535, .Height = 8130, .ButtonsTop = 7510};
constexpr int PageCount = 10;

}  // namespace

PrintSetting::PrintSetting(PrintRun& run, PrintSettingServices services)
    : FittedDialog("PrintSetting", "Printing Item Setting", SettingPlan, nullptr),
      run_(run),
      services_(std::move(services)),
      cover_(new CoverGroup(run, Upper())) {
  BuildFunctionGroup();
  BuildColorGroup();
  BuildButtons();
  Connect();
  LoadDialog();
}

// The focus moves once more while the controls are deleted; that must not be refused.
PrintSetting::~PrintSetting() {
  delete guard_;
}

void PrintSetting::BuildFunctionGroup() {
  auto* frame = new GroupFrame("Frame2", "Data for each f&unction", {135, 2800, 5300, 3980}, Upper());
  cmbFunc_ = new QComboBox(frame);
  NameControl(*cmbFunc_, "cmbFunc", NoFamily, QString::fromLatin1("Function"));
  frame->SetBuddy(cmbFunc_);
  Place(*cmbFunc_, {480, 360, 3975, 330});
  for (int id = 0; id < PageCount; ++id) pages_.push_back(MakeItemPage(static_cast<PageId>(id), run_, frame));
}

void PrintSetting::BuildColorGroup() {
  auto* frame = new GroupFrame("Frame3", "Color Selection", {135, 6850, 5300, 615}, Upper());
  optColor_ = {new OptionButton("optColor", 0, "&Black and White", {480, 240, 1815, 255}, frame),
               new OptionButton("optColor", 1, "&Color", {2400, 240, 855, 255}, frame)};
  optColor_[0]->setChecked(true);
}

void PrintSetting::BuildButtons() {
  cmdOK_ = AddButton("cmdOK", "&OK", {975, 7650, 1455, 375});
  cmdOK_->setDefault(true);
  cmdCancel_ = AddButton("cmdCancel", "Ca&ncel", {3015, 7650, 1455, 375});
}

void PrintSetting::Connect() {
  connect(cover_, &CoverGroup::EditWanted, this, &PrintSetting::EditClicked);
  connect(cmbFunc_, &QComboBox::activated, this, &PrintSetting::FunctionChosen);
  for (std::int16_t index = 0; index < 2; ++index) {
    connect(optColor_.at(static_cast<std::size_t>(index)), &OptionButton::toggled, this,
            [this, index](bool on) {
              if (on) run_.Options.ColorType = index;
            });
  }
  guard_ = new FocusGuard(
      *this, [this](const QWidget& left, const QWidget& entered) { return RefuseToLeave(left, entered); });
  connect(cmdOK_, &QPushButton::clicked, this, &PrintSetting::OkClicked);
  connect(cmdCancel_, &QPushButton::clicked, this, &PrintSetting::reject);
}

// A page that appears while the dialog loads is loaded after the dialog itself.
void PrintSetting::LoadDialog() {
  if (FileExists(run_.Session.HelpFile)) {
    services_.SetHelp(run_.Session.HelpFile, run_.Session.HelpContextId);
    SetHelpContext(*this, run_.Session.HelpContextId);
  }
  cover_->Load();
  FillFunctionList();
  SelectByMode();
  run_.Session.StepStartValid = -1;
  run_.Session.StepEndValid = -1;
  Chosen(run_, optColor_, run_.Options.ColorType, 0).setChecked(true);
  loaded_ = true;
  ShowWithPage();
}

// The page may show a message about what it loads, which must appear over the dialog and not before any
// window is shown.
void PrintSetting::ShowWithPage() {
  show();
  try {
    shown_->Load();
  } catch (...) {
    delete std::exchange(guard_, nullptr);  // the focus moves once more while the controls are deleted
    throw;
  }
}

void PrintSetting::FillFunctionList() {
  entries_ = OfferedFunctions(run_);
  const QSignalBlocker quiet(cmbFunc_);
  cmbFunc_->clear();
  for (const FunctionEntry& entry : entries_) cmbFunc_->addItem(QString::fromLatin1(entry.Caption));
  cmbFunc_->setCurrentIndex(-1);
}

void PrintSetting::SelectByMode() {
  const ModeChoice& choice = OpenMode(run_, entries_);
  SelectFunction(choice.Index);
  cmbFunc_->setEnabled(choice.Choice == FunctionChoice::Free);
  LoadStepLimit(run_);
}

// Runs the handling of the list also if the index doesn't change, unlike the toolkit's own setter.
void PrintSetting::SelectFunction(int index) {
  cmbFunc_->setCurrentIndex(index);
  FunctionClicked();
}

// The page that is left may refuse it. The wheel changes the list also while the dialog isn't active, and
// then no signal shows that the focus has moved.
void PrintSetting::FunctionChosen() {
  if (guard_->Enter(*cmbFunc_)) FunctionClicked();
}

void PrintSetting::FunctionClicked() {
  const FunctionEntry& entry = entries_[static_cast<std::size_t>(cmbFunc_->currentIndex())];
  ShowPage(*pages_.at(static_cast<std::size_t>(PageOf(run_.Session, entry))));
}

// True if the page that the focus has left may not be left; the user has been brought back to it then. The
// check of the control that was left comes first.
bool PrintSetting::RefuseToLeave(const QWidget& left, const QWidget& entered) {
  const auto found = std::find_if(pages_.begin(), pages_.end(),
                                  [&left](const ItemPage* page) { return page->isAncestorOf(&left); });
  if (found == pages_.end()) return false;
  ItemPage& page = **found;
  page.ControlLeft(left);
  if (page.isAncestorOf(&entered) || &entered == cmdCancel_ || page.MayLeave()) return false;
  SelectPage(static_cast<PageId>(found - pages_.begin()));
  page.ReturnToFault();
  return true;
}

void PrintSetting::SelectPage(PageId id) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(), [&](const FunctionEntry& function) {
    return PageOf(run_.Session, function) == id;
  });
  assert(entry != entries_.end());
  SelectFunction(static_cast<int>(entry - entries_.begin()));
}

void PrintSetting::ShowPage(ItemPage& page) {
  if (shown_ == &page) return;
  if (shown_ != nullptr) shown_->hide();
  shown_ = &page;
  page.show();
  if (loaded_) page.Load();
}

// Modal: this dialog gets no input until the editor has closed, and then shows what was edited.
void PrintSetting::EditClicked() {
  auto* editor = new EditCover(run_, this);
  editor->setAttribute(Qt::WA_DeleteOnClose);
  connect(editor, &QDialog::finished, cover_, &CoverGroup::ShowChosenBlock);
  editor->show();
  editor->activateWindow();
}

// All input has been checked field by field, when its field was left. A key presses the button without
// leaving the field, so the focus is moved here.
void PrintSetting::OkClicked() {
  if (!guard_->Enter(*cmdOK_)) return;
  StampOptions(run_);
  // Printing goes on even if the file can't be written.
  static_cast<void>(WritePrintOptionsFile(run_, run_.Session.SystemFolder + OptionsFile));
  if (run_.Session.Mode == Mode::PrnSetting) EndRun(run_);
  const auto showPrintPreview = services_.ShowPrintPreview;  // outlives the dialog
  hide();
  deleteLater();
  showPrintPreview();
}

TabControl& PrintSetting::FrontTabs() const {
  return shown_->Tabs();
}

void PrintSetting::reject() {
  EndRun(run_);
}

}  // namespace tarvis
