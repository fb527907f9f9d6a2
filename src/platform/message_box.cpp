#include "platform/message_box.h"

#include "platform/qt_desktop.h"
#include "run/failures.h"

namespace tarvis {

void ShowUntilAnswered(QMessageBox& box) {
  box.exec();
  // Whatever the user does to a box counts as one of its buttons.
  if (box.clickedButton() == nullptr) QtDesktop().EndProcess(ExitAfterRunTimeFailure);
}

}  // namespace tarvis
