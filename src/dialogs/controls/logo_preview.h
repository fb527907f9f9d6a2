// A preview beside the path of the logo: the picture as it will be on the cover letter.
#pragma once

#include <QFrame>
#include <functional>
#include <memory>
#include <string>

#include "dialogs/controls/place.h"

namespace tarvis {

class PaintablePicture;

// Reads a picture; returns nullptr if there is none that can be shown. It is called in a thread of its own,
// which may live longer than the program's windows, and must not throw.
using PictureReader = std::function<std::shared_ptr<const PaintablePicture>(const std::string& path)>;

// Opens regular files only.
std::shared_ptr<const PaintablePicture> ReadPicture(const std::string& path);

// Invisible while the path names no picture; the report informs the user about that.
class LogoPreview : public QFrame {
  Q_OBJECT

 public:
  LogoPreview(const Rect& bounds, PictureReader read, QWidget* parent);
  ~LogoPreview() override;

  // Returns at once and shows the picture when it has been read, unless another path has been named by then.
  void ShowFile(const std::string& path);
  // The path has changed, and the new one isn't complete yet.
  void Forget();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Mailbox;

  void Show(std::shared_ptr<const PaintablePicture> picture);

  PictureReader read_;
  std::string path_;
  std::shared_ptr<Mailbox> mailbox_;  // of the latest reading
  std::shared_ptr<const PaintablePicture> picture_;
};

}  // namespace tarvis
