// Answers message boxes as a user would and keeps what they said.
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <string>
#include <vector>

namespace tarvis {

struct SeenMessage {
  std::string Title;
  std::string Text;
  QMessageBox::Icon Icon;
  QMessageBox::StandardButtons Buttons;
  Qt::TextFormat Format;
  bool Modal;
  const QWidget* Owner;
  bool Busy;  // the pointer says that the program is
};

// While it lives, each message box that comes up is read and answered with the Enter key.
class MessageWatch : public QObject {
 public:
  MessageWatch() { qApp->installEventFilter(this); }

  const std::vector<SeenMessage>& Seen() const { return seen_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box && event->type() == QEvent::Show) {
      seen_.push_back({box->windowTitle().toStdString(), box->text().toStdString(), box->icon(),
                       box->standardButtons(), box->textFormat(), box->isModal(), box->parentWidget(),
                       QApplication::overrideCursor() != nullptr});
      QTimer::singleShot(0, box, [box] { QTest::keyClick(box, Qt::Key_Return); });
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  std::vector<SeenMessage> seen_;
};

}  // namespace tarvis
