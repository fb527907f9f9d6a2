// Shows the picture that a path names, as it will stand on the cover letter.
#pragma once

#include <QFrame>
#include <QString>
#include <memory>
#include <string>

#include "dialogs/controls/place.h"

namespace tarvis {

class PaintablePicture;

class LogoPreview : public QFrame {
  Q_OBJECT

 public:
  LogoPreview(const Bounds& bounds, QWidget* parent);

  // A path that names no file, or no picture, shows words instead. Never throws.
  void ShowFile(const std::string& path);
  // What is shown in place of a picture; empty while there is one.
  QString Words() const { return words_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::shared_ptr<const PaintablePicture> picture_;
  QString words_;
};

}  // namespace tarvis
