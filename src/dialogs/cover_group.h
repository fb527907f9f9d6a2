// The group "Cover" of PrintSetting: whether a cover letter is printed, and to whom it goes.
#pragma once

#include <QButtonGroup>
#include <array>
#include <cstdint>

#include "dialogs/controls/addressee_grid.h"
#include "dialogs/controls/controls.h"

namespace tarvis {

struct PrintRun;

// Edits the options of the run in place, at each click.
class CoverGroup : public GroupFrame {
  Q_OBJECT

 public:
  CoverGroup(PrintRun& run, QWidget* parent);

  // Applies the options to the controls. Options that no control can show throw RunTimeFailure.
  void Load();
  // Shows the chosen addressee anew, after its texts have been edited.
  void ShowChosenBlock();

 signals:
  // The user wants to edit the texts of the cover letter.
  void EditWanted();

 private:
  void SetCoverControlsEnabled(bool enabled);
  void ShowSubmitBlock(bool show, std::int16_t index);
  void CoverClicked();
  void SubmitBlockClicked(std::int16_t index);

  PrintRun& run_;
  TickBox* chkCover_;
  QPushButton* cmdEdit_;
  QLabel* lblCover1_;
  std::array<OptionButton*, 3> optDrow_;
  QButtonGroup* drowGroup_;
  AddresseeGrid* spread_;
};

}  // namespace tarvis
