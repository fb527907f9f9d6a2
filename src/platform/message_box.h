// Message boxes outside the preview: those that the run can't go on without.
#pragma once

#include <QMessageBox>

namespace tarvis {

// Shows the box until the user has answered it. When the toolkit loses its display meanwhile, the process
// ends with status 1 and no file is touched: older toolkits end it by themselves, newer ones only leave every
// event loop, and the run would go on as if the user had answered.
void ShowUntilAnswered(QMessageBox& box);

}  // namespace tarvis
