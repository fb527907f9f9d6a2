#include "dialogs/cover_group.h"

#include "dialogs/controls/choice.h"
#include "run/print_run.h"
#include "session/setting_rules.h"
#include "text/text.h"

namespace tarvis {

CoverGroup::CoverGroup(PrintRun& run, QWidget* parent)
    : GroupFrame("Frame1", "Cover", {120, 45, 5300, 2640}, parent),
      run_(run),
      chkCover_(new TickBox("chkCover", NoFamily, "&Attaching the Cover", {240, 225, 1815, 375}, this)),
      cmdEdit_(MakeButton("cmdEdit", "Cover &Editing", {2640, 240, 1695, 495}, this)),
      lblCover1_(MakeLabel("lblCover1", NoFamily, " Where to Submit", {360, 810, 3375, 255}, this)),
      optDrow_{new OptionButton("optDrow", 0, " Where to Submit (No.&1)", {330, 1035, 1455, 375}, this),
               new OptionButton("optDrow", 1, " Where to Submit (No.&2)", {1800, 1035, 1455, 375}, this),
               new OptionButton("optDrow", 2, " Where to Submit (No.&3)", {3240, 1035, 1455, 375}, this)},
      drowGroup_(new QButtonGroup(this)),
      spread_(new AddresseeGrid({105, 1440, 5145, 1140}, this)) {
  SetCoverControlsEnabled(false);
  for (OptionButton* option : optDrow_) drowGroup_->addButton(option);
  connect(chkCover_, &TickBox::ValueChanged, this, &CoverGroup::CoverClicked);
  for (std::int16_t index = 0; index < 3; ++index) {
    connect(optDrow_.at(static_cast<std::size_t>(index)), &OptionButton::toggled, this,
            [this, index](bool on) {
              if (on) SubmitBlockClicked(index);
            });
  }
  connect(cmdEdit_, &QPushButton::clicked, this, &CoverGroup::EditWanted);
}

void CoverGroup::Load() {
  if (run_.Options.Cover == 0) return chkCover_->SetValue(0);
  chkCover_->SetValue(1);
  if (run_.Options.SelectCover > 0) Chosen(run_, optDrow_, run_.Options.SelectCover, 1).setChecked(true);
}

void CoverGroup::ShowChosenBlock() {
  const std::int16_t selected = run_.Options.SelectCover;
  if (selected != 0) SubmitBlockClicked(static_cast<std::int16_t>(selected - 1));
}

void CoverGroup::SetCoverControlsEnabled(bool enabled) {
  cmdEdit_->setEnabled(enabled);
  lblCover1_->setEnabled(enabled);
  for (OptionButton* option : optDrow_) option->setEnabled(enabled);
  spread_->setEnabled(enabled);
}

void CoverGroup::ShowSubmitBlock(bool show, std::int16_t index) {
  const AddresseeBlock block =
      show ? run_.Options.User.at(static_cast<std::size_t>(index)) : AddresseeBlock{};
  spread_->SetSettingValue(1, block.Title);
  spread_->SetSettingValue(2, block.Corp);
  spread_->SetSettingValue(3, NewlinesToBlanks(block.Sect));
  spread_->SetSettingValue(4, block.Name);
}

void CoverGroup::CoverClicked() {
  SetCoverControlsEnabled(chkCover_->IsOn());
  if (SwitchCover(run_.Options, chkCover_->IsOn())) optDrow_[0]->setChecked(true);
  if (chkCover_->IsOn()) return;
  drowGroup_->setExclusive(false);
  for (OptionButton* option : optDrow_) option->setChecked(false);
  drowGroup_->setExclusive(true);
  ShowSubmitBlock(false, 0);
}

void CoverGroup::SubmitBlockClicked(std::int16_t index) {
  ShowSubmitBlock(true, index);
  run_.Options.SelectCover = static_cast<std::int16_t>(index + 1);
}

}  // namespace tarvis
