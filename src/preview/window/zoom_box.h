// The box of the toolbar with the zoom factor, which also takes a typed one.
#pragma once

#include <QComboBox>

namespace tarvis {

class ZoomBox : public QComboBox {
  Q_OBJECT
 public:
  explicit ZoomBox(QWidget* parent);

  // `zoom` is 1 for actual size.
  void ShowZoom(double zoom);

 signals:
  void ZoomChosen(double zoom);
  // The user has chosen or typed something, even if it was no number.
  void Used();

 private:
  void Read();

  double zoom_ = 1;
};

}  // namespace tarvis
