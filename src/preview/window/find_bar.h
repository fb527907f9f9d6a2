// The bar at the foot of the window for finding text.
#pragma once

#include <QWidget>

#include "preview/text/text_search.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace tarvis {

class FindBar : public QWidget {
  Q_OBJECT
 public:
  explicit FindBar(QWidget* parent = nullptr);

  // Shows the bar with its text selected, ready for typing.
  void Open();
  QString Text() const;
  SearchOptions Options() const;
  // "3 of 17"; `current` counts from 1.
  void ShowCount(int current, int total);

 signals:
  // Text or switches have changed.
  void Changed();
  void NextWanted();
  void PreviousWanted();
  void Closed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLineEdit* text_;
  QCheckBox* caseMatters_;
  QCheckBox* wholeWords_;
  QLabel* count_;
};

}  // namespace tarvis
