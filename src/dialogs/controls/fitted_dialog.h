// A dialog in the user's font size that is never larger than its screen.
#pragma once

#include <QDialog>
#include <QScrollArea>
#include <vector>

#include "dialogs/controls/place.h"

namespace tarvis {

class TabControl;

// On a screen that is too low its upper part scrolls, and follows the focus, while the buttons below stay in
// sight. Ctrl+Tab changes the tab whatever has the focus.
class FittedDialog : public QDialog {
  Q_OBJECT

 public:
  // In twips: the size of the client area, and where the part that scrolls ends and the one with the buttons
  // begins.
  struct Plan {
    float Width;
    float Height;
    float ButtonsTop;
  };

  FittedDialog(const char* name, const char* caption, const Plan& plan, QWidget* parent);
  ~FittedDialog() override;

 protected:
  // The container of all controls above the buttons. It has the coordinates of the dialog.
  QWidget* Upper() const { return scroll_->widget(); }
  // `bounds` are those in a dialog of full height.
  QPushButton* AddButton(const char* name, const char* caption, const Rect& bounds);
  // The tabs that Ctrl+Tab turns.
  virtual TabControl& FrontTabs() const = 0;

  void showEvent(QShowEvent* event) override;

 private:
  struct BottomButton {
    QPushButton* Button;
    QPoint Place;  // in a dialog of full height
  };

  QSize RoomOnScreen() const;
  // Takes the size that the screen allows.
  void Fit();
  void FollowFocus(QWidget* control);

  QScrollArea* scroll_;
  QSize whole_;
  std::vector<BottomButton> buttons_;
};

}  // namespace tarvis
