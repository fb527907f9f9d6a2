#include "dialogs/controls/logo_preview.h"

#include <QPainter>

#include "dialogs/controls/controls.h"
#include "pictures/picture_file_loader.h"
#include "text/native_path.h"
#include "text/run_time_failure.h"

namespace tarvis {

namespace {

constexpr int MarginPixels = 4;

// The largest rectangle of the picture's proportion inside `room`, in its middle.
QRectF Fitted(const PaintablePicture& picture, const QRectF& room) {
  const QSizeF size =
      QSizeF(static_cast<qreal>(picture.NaturalWidth()), static_cast<qreal>(picture.NaturalHeight()))
          .scaled(room.size(), Qt::KeepAspectRatio);
  QRectF fitted(QPointF(), size);
  fitted.moveCenter(room.center());
  return fitted;
}

}  // namespace

LogoPreview::LogoPreview(const Bounds& bounds, QWidget* parent) : QFrame(parent) {
  NameControl(*this, "imgLogo", NoFamily, QString::fromLatin1("Logo"));
  setFrameShape(QFrame::StyledPanel);
  Place(*this, bounds);
  ShowFile({});
}

void LogoPreview::ShowFile(const std::string& path) {
  picture_.reset();
  words_.clear();
  if (path.empty()) {
    words_ = QString::fromLatin1("No logo");
  } else if (!FileExists(path)) {
    words_ = QString::fromLatin1("No such file");
  } else {
    try {
      picture_ = std::dynamic_pointer_cast<const PaintablePicture>(PictureFileLoader().Load(path));
    } catch (const RunTimeFailure& failure) {
      words_ = QString::fromLatin1("Not shown: ") + QString::fromStdString(failure.Reason());
    }
  }
  setAccessibleDescription(words_);
  update();
}

void LogoPreview::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  const QRect room = contentsRect().adjusted(MarginPixels, MarginPixels, -MarginPixels, -MarginPixels);
  if (picture_ == nullptr) {
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, words_);
    return;
  }
  painter.fillRect(contentsRect(), Qt::white);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  picture_->Paint(painter, Fitted(*picture_, QRectF(room)));
}

}  // namespace tarvis
