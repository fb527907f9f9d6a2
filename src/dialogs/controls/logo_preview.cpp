#include "dialogs/controls/logo_preview.h"

#include <QMetaObject>
#include <QPainter>
#include <mutex>
#include <utility>

#include "dialogs/controls/controls.h"
#include "dialogs/controls/detached.h"
#include "pictures/picture_file_loader.h"
#include "text/native_path.h"

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

// The reading thread puts the picture here.
struct LogoPreview::Mailbox : std::enable_shared_from_this<Mailbox> {
  std::mutex Mutex;
  LogoPreview* Reader;  // nullptr once the picture isn't needed any more

  explicit Mailbox(LogoPreview* reader) : Reader(reader) {}

  void Close() {
    const std::lock_guard lock(Mutex);
    Reader = nullptr;
  }
  void Deliver(std::shared_ptr<const PaintablePicture> picture) {
    const std::lock_guard lock(Mutex);
    if (Reader == nullptr) return;
    QMetaObject::invokeMethod(
        Reader,
        [mailbox = shared_from_this(), picture = std::move(picture)] {
          if (mailbox->Reader != nullptr) mailbox->Reader->Show(picture);
        },
        Qt::QueuedConnection);
  }
};

std::shared_ptr<const PaintablePicture> ReadPicture(const std::string& path) {
  try {
    if (!FileExists(path)) return nullptr;
    return std::dynamic_pointer_cast<const PaintablePicture>(PictureFileLoader().Load(path));
  } catch (const std::exception&) {
    return nullptr;  // the report of the cover letter informs the user about the file
  }
}

LogoPreview::LogoPreview(const Rect& bounds, PictureReader read, QWidget* parent)
    : QFrame(parent), read_(std::move(read)) {
  NameControl(*this, "imgLogo", NoFamily, QString::fromLatin1("Logo"));
  setFrameShape(QFrame::StyledPanel);
  Place(*this, bounds);
  hide();
}

LogoPreview::~LogoPreview() {
  if (mailbox_ != nullptr) mailbox_->Close();
}

void LogoPreview::ShowFile(const std::string& path) {
  if (path == path_) return;
  Forget();
  if (path.empty()) return;
  path_ = path;
  mailbox_ = std::make_shared<Mailbox>(this);
  // Without a thread there is no preview.
  static_cast<void>(RunDetached([read = read_, path, mailbox = mailbox_] { mailbox->Deliver(read(path)); }));
}

void LogoPreview::Forget() {
  if (mailbox_ != nullptr) mailbox_->Close();
  mailbox_.reset();
  path_.clear();
  Show(nullptr);
}

void LogoPreview::Show(std::shared_ptr<const PaintablePicture> picture) {
  picture_ = std::move(picture);
  setVisible(picture_ != nullptr);
  update();
}

void LogoPreview::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (picture_ == nullptr) return;
  QPainter painter(this);
  const QRect room = contentsRect().adjusted(MarginPixels, MarginPixels, -MarginPixels, -MarginPixels);
  painter.fillRect(contentsRect(), Qt::white);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  picture_->Paint(painter, Fitted(*picture_, QRectF(room)));
}

}  // namespace tarvis
