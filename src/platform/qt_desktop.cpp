#include "platform/qt_desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

namespace tarvis {

void QtDesktop::Beep() {
  QApplication::beep();
}

void QtDesktop::ShowMessage(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::Ok, QApplication::activeWindow());
  box.setObjectName("message");
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void QtDesktop::Diagnose(const std::string& line) {
  const std::string whole = "tarvis: " + line + "\n";
  std::fputs(whole.c_str(), stderr);
}

void QtDesktop::EndProcess(int exitStatus) {
  std::fflush(nullptr);
  std::_Exit(exitStatus);
}

}  // namespace tarvis
