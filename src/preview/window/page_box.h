// The box of the toolbar with the number of the page that is read, and the number of pages beside it.
#pragma once

#include <QWidget>

class QLineEdit;

namespace tarvis {

// Pages are counted from 0 here, and from 1 on the screen.
class PageBox : public QWidget {
  Q_OBJECT
 public:
  PageBox(int pageCount, QWidget* parent);

  // A number that is being typed stays until the box is left.
  void ShowPage(int page);
  // Gives the box the focus, ready for typing.
  void StartTyping();

 signals:
  // The user has typed the number of a page of the document.
  void PageTyped(int page);

 private:
  void Read();
  void ShowNumber();

  int pageCount_;
  int page_ = 0;
  QLineEdit* number_;
};

}  // namespace tarvis
