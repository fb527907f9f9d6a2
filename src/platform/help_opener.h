// Shows the host's help when the user presses F1.
#pragma once

#include <QObject>
#include <cstdint>
#include <string>

namespace tarvis {

// Watches all windows of the application. Without a help file F1 does nothing.
class HelpOpener : public QObject {
 public:
  // Empty for none; a path as the system forms it, with backslashes.
  void SetHelpFile(const std::string& path) { helpFile_ = path; }
  // The context number that is used if the control with the focus has none.
  void SetContext(std::int32_t helpContextId) { context_ = helpContextId; }

  // An .html file opens at the anchor named by the context number of the control that has the focus, any
  // other kind with the desktop's program for it.
  void Open() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::string helpFile_;
  std::int32_t context_ = 0;
};

}  // namespace tarvis
