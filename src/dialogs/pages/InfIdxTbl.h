// The item page of the program table, with the range of steps to print.
#pragma once

#include <QButtonGroup>
#include <array>

#include "dialogs/pages/item_page.h"

namespace tarvis {

// A box for a step number, which ignores everything but digits.
class StepBox : public LineBox {
  Q_OBJECT

 public:
  using LineBox::LineBox;

 protected:
  QString Accepted(const QString& piece) const override;
  void keyPressEvent(QKeyEvent* event) override;
};

class InfIdxTbl : public ItemPage {
  Q_OBJECT

 public:
  InfIdxTbl(PrintRun& run, QWidget* parent);

  // Brings `SSTab1` to a tab.
  void TabChg(std::int16_t tab);
  // 1 for the start, 2 for the end; anything else does nothing.
  void SetStepFocus(std::int16_t field);

  // Runs the check of `control` if it is one of the boxes for a step.
  void ControlLeft(const QWidget& control) override;
  // False after a bad range where a range is what the dialog was opened for.
  [[nodiscard]] bool MayLeave() const override;
  void ReturnToFault() override;

 protected:
  void ResetTab() override;
  void LoadItems() override;

 private:
  void BuildRange(QWidget* tab);
  void RangeClicked(std::int16_t index);
  void EnableRange(bool enabled);
  void CheckSteps();
  // Whether both steps passed the check that ran last.
  bool RangeIsValid() const;
  void TabLeft(int left);
  void CommentsClicked();

  IdxTblOptions& option_;
  std::array<OptionButton*, 3> optRange_{};
  QLabel* labelStart_ = nullptr;
  StepBox* textStart_ = nullptr;
  QLabel* labelEnd_ = nullptr;
  StepBox* textEnd_ = nullptr;
  TickBox* chkItemEtc_ = nullptr;
};

}  // namespace tarvis
