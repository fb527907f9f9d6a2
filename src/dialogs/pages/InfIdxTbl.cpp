#include "dialogs/pages/InfIdxTbl.h"

#include <QKeyEvent>
#include <algorithm>

#include "run/print_run.h"
#include "session/step_range.h"
#include "session/title_limit.h"

namespace tarvis {

namespace {

constexpr std::int16_t ItemsTab = 1;
constexpr int StepLength = 3;
constexpr std::int16_t Invalid = 0;

// The code that the key sends, as a signed 16-bit number; a control key with a letter sends 1 to 26.
std::int16_t KeyCode(const QKeyEvent& event) {
  const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
  if (letter && event.modifiers().testFlag(Qt::ControlModifier))
    return static_cast<std::int16_t>(event.key() - 0x40);
  return static_cast<std::int16_t>(event.text().at(0).unicode());
}

bool IsThrownAway(std::int16_t code) {
  return (code >= 58 && code <= 126) || (code >= 0 && code <= 47 && code != 8);
}

// Keys that the dialog handles itself must not be ignored by the box.
bool IsDialogKey(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape || key == Qt::Key_Tab ||
         key == Qt::Key_Backtab;
}

// Keys that work on the whole text enter no character themselves.
bool IsEditingKey(const QKeyEvent& event) {
  static constexpr std::array Keys{QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut,
                                   QKeySequence::Paste,     QKeySequence::Undo, QKeySequence::Redo};
  return std::any_of(Keys.begin(), Keys.end(),
                     [&event](QKeySequence::StandardKey key) { return event.matches(key); });
}

}  // namespace

void StepBox::keyPressEvent(QKeyEvent* event) {
  const bool sendsCode = !event->text().isEmpty() && !IsDialogKey(event->key()) && !IsEditingKey(*event);
  if (!sendsCode || !IsThrownAway(KeyCode(*event))) LineBox::keyPressEvent(event);
}

QString StepBox::Accepted(const QString& piece) const {
  QString kept;
  for (const QChar c : LineBox::Accepted(piece)) {
    if (c != u'\b' && !IsThrownAway(static_cast<std::int16_t>(c.unicode()))) kept += c;
  }
  return kept;
}

InfIdxTbl::InfIdxTbl(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfIdxTbl", PageId::InfIdxTbl, "Program Table", {PrintingItemsTab}}, parent),
      option_(run.Options.IdxTblOption) {
  QWidget* tab = Tabs().Page(ItemsTab);
  AddLabels(tab, {{"Label4", "Program Table Print Range", {150, 390, 1905, 210}},
                  {"Label1", "Others", {150, 1800, 495, 210}}});
  BuildRange(tab);
  chkItemEtc_ = new TickBox("chkItemEtc", NoFamily, "Comment&s", {330, 2040, 1485, 255}, tab);
  chkItemEtc_->SetValue(1);
  SetReadingOrder(*tab);
  for (std::int16_t index = 0; index < 3; ++index) {
    connect(optRange_.at(static_cast<std::size_t>(index)), &OptionButton::toggled, this,
            [this, index](bool on) {
              if (on) RangeClicked(index);
            });
  }
  connect(chkItemEtc_, &TickBox::ValueChanged, this, &InfIdxTbl::CommentsClicked);
  connect(&Tabs(), &TabControl::TabChanged, this, &InfIdxTbl::TabLeft);
}

void InfIdxTbl::BuildRange(QWidget* tab) {
  optRange_ = {
      new OptionButton("optRange", 0, "Print a&ll STEP.", {360, 640, 2415, 255}, tab),
      new OptionButton("optRange", 1, "Print only STEP &which defined program.", {360, 980, 3615, 255}, tab),
      new OptionButton("optRange", 2, "Select the P&rint STEP.", {360, 1320, 2055, 255}, tab)};
  labelStart_ = MakeLabel("LabelStart", NoFamily, "S&tart", {2520, 1350, 495, 255}, tab);
  textStart_ = new StepBox("TextStart", NoFamily, "Start", StepLength, {3000, 1320, 495, 270}, tab);
  labelStart_->setBuddy(textStart_);
  labelEnd_ = MakeLabel("LabelEnd", NoFamily, "En&d", {3720, 1350, 495, 255}, tab);
  textEnd_ = new StepBox("TextEnd", NoFamily, "End", StepLength, {4200, 1320, 495, 270}, tab);
  labelEnd_->setBuddy(textEnd_);
  EnableRange(false);
}

void InfIdxTbl::TabChg(std::int16_t tab) {
  Tabs().SetCurrentTab(tab);
}

void InfIdxTbl::SetStepFocus(std::int16_t field) {
  if (field == 1) textStart_->GiveFocus();
  if (field == 2) textEnd_->GiveFocus();
}

void InfIdxTbl::ControlLeft(const QWidget& control) {
  if (&control == textStart_ || &control == textEnd_) CheckSteps();
}

bool InfIdxTbl::MayLeave() const {
  const Mode mode = Run().Session.Mode;
  return (mode != Mode::PrnSetting && mode != Mode::IdxTbl) || RangeIsValid();
}

bool InfIdxTbl::RangeIsValid() const {
  return StepRangeIsValid(Run().Session);
}

void InfIdxTbl::ReturnToFault() {
  TabChg(ItemsTab);
  SetStepFocus(Run().Session.StepStartValid == 0 ? 1 : 2);
  Run().Desktop.ShowMessage(InputErrorTitle, "Wrong the inputted STEP number.Please input again.");
}

void InfIdxTbl::ResetTab() {
  TabChg(0);
}

void InfIdxTbl::LoadItems() {
  LoadStepRange(Run());
  if (option_.Range == TypedRange) {
    textStart_->SetText(option_.First);
    textEnd_->SetText(option_.Last);
  }
  optRange_.at(static_cast<std::size_t>(option_.Range))->setChecked(true);
  Show(*chkItemEtc_, option_.Comment);
}

void InfIdxTbl::RangeClicked(std::int16_t index) {
  ChooseStepRange(Run(), index);
  textEnd_->SetText(option_.Last);
  textStart_->SetText(option_.First);
  if (index != TypedRange) return EnableRange(false);
  EnableRange(true);
  SetStepFocus(1);
  // An arrow key chooses first and takes the focus to the option afterwards.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (optRange_[TypedRange]->hasFocus()) SetStepFocus(1);
      },
      Qt::QueuedConnection);
}

void InfIdxTbl::EnableRange(bool enabled) {
  labelStart_->setEnabled(enabled);
  labelEnd_->setEnabled(enabled);
  textStart_->setEnabled(enabled);
  textEnd_->setEnabled(enabled);
}

void InfIdxTbl::CheckSteps() {
  CheckStepRange(Run(), textStart_->Text(), textEnd_->Text());
}

void InfIdxTbl::TabLeft(int left) {
  if (left != ItemsTab || option_.Range != TypedRange) return;
  CheckSteps();
  if (!RangeIsValid()) ReturnToFault();
}

void InfIdxTbl::CommentsClicked() {
  if (RangeIsValid()) {
    option_.Comment = chkItemEtc_->Value();
  } else {
    ReturnToFault();
  }
}

}  // namespace tarvis
