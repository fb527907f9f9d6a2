#include "pictures/image_picture.h"

#include <QBuffer>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>
#include <cmath>
#include <cstring>
#include <string_view>

#include "pictures/dib.h"
#include "pictures/picture_budget.h"
#include "pictures/toolkit_image.h"
#include "report/engine/units.h"

namespace tarvis {
namespace {

bool StartsWith(Bytes bytes, std::string_view start) {
  return bytes.size() >= start.size() && std::memcmp(bytes.data(), start.data(), start.size()) == 0;
}

Bytes View(const QByteArray& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

[[noreturn]] void Refuse(const QImageReader& reader) {
  throw BadDib(reader.errorString().toStdString());
}

// The toolkit shows icons only: a cursor differs in its kind, and in the hot spots that are stored where an
// icon has planes and bits.
QByteArray CursorAsIcon(QByteArray bytes) {
  constexpr qsizetype entrySize = 16;
  constexpr qsizetype headerSize = 6;
  bytes[2] = 1;
  const qsizetype count = static_cast<uchar>(bytes[4]) | static_cast<uchar>(bytes[5]) << 8;
  for (qsizetype i = 0; i < count && headerSize + (i + 1) * entrySize <= bytes.size(); ++i)
    bytes.replace(headerSize + i * entrySize + 4, 4, QByteArray(4, '\0'));
  return bytes;
}

// The file of its own that an entry of an icon may be; empty if it is none, or lies outside of the icon.
Bytes FileOfEntry(Bytes icon, int number) {
  constexpr std::size_t headerSize = 6, entrySize = 16;
  ByteReader reader(icon);
  reader.Skip(headerSize + entrySize * static_cast<std::size_t>(number) + 8);
  const std::size_t size = reader.U32();
  const std::size_t offset = reader.U32();
  if (offset > icon.size() || size > icon.size() - offset) return {};
  const Bytes entry = Slice(icon, offset, size);
  return StartsWith(entry, "\x89PNG") ? entry : Bytes();
}

// TooCostly if all of them are more than any picture may be: many entries can name one large file.
QImage ReadEntryFile(Bytes file, PictureBudget& budget) {
  budget.TakeDecodedBytes(ToolkitImageSize(file));
  try {
    return ReadToolkitImage(file);
  } catch (const BadDib&) {
    return {};
  }
}

// The largest picture of an icon, and of several that large the last, which has most colours.
QImage ReadIcon(const QByteArray& data) {
  QBuffer buffer;
  buffer.setData(data);
  QImageReader reader(&buffer, "ico");
  PictureBudget budget;
  QImage best;
  const int count = std::min(reader.imageCount(), 64);
  for (int i = 0; i < count; ++i) {
    const Bytes file = FileOfEntry(View(data), i);
    if (file.empty() && !reader.jumpToImage(i)) continue;
    QImage image = file.empty() ? reader.read() : ReadEntryFile(file, budget);
    if (!image.isNull() && image.width() >= best.width()) best = std::move(image);
  }
  if (best.isNull()) Refuse(reader);
  return best;
}

QByteArray Copy(Bytes bytes) {
  return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

}  // namespace

float ImagePicture::NaturalWidth() const {
  return static_cast<float>(image_.width()) * TwipsPerPixel;
}

float ImagePicture::NaturalHeight() const {
  return static_cast<float>(image_.height()) * TwipsPerPixel;
}

void ImagePicture::Paint(QPainter& painter, const QRectF& target) const {
  DrawImageWell(painter, target, image_, image_.rect());
}

void DrawImageWell(QPainter& painter, const QRectF& target, const QImage& image, const QRectF& source) {
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QRectF place = painter.deviceTransform().mapRect(target);
  const bool screen =
      painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster;
  const double across = source.width() / std::max(place.width(), 1.0);
  const double down = source.height() / std::max(place.height(), 1.0);
  if (screen && painter.deviceTransform().type() <= QTransform::TxScale && std::max(across, down) > 1.5) {
    const QImage part = source == QRectF(image.rect()) ? image : image.copy(source.toAlignedRect());
    const QSize size(std::max(1, static_cast<int>(std::lround(part.width() / std::max(across, 1.0)))),
                     std::max(1, static_cast<int>(std::lround(part.height() / std::max(down, 1.0)))));
    const QImage scaled = part.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(target, scaled, scaled.rect());
  } else {
    painter.drawImage(target, image, source);
  }
  painter.restore();
}

ImageKind FindImageKind(Bytes bytes) {
  using namespace std::string_view_literals;
  if (StartsWith(bytes, "BM")) return ImageKind::Bitmap;
  if (StartsWith(bytes, "\xFF\xD8\xFF") || StartsWith(bytes, "GIF8") || StartsWith(bytes, "\x89PNG"))
    return ImageKind::Toolkit;
  if (StartsWith(bytes, "\0\0\1\0"sv)) return ImageKind::Icon;
  if (StartsWith(bytes, "\0\0\2\0"sv)) return ImageKind::Cursor;
  return LooksLikeDib(bytes) ? ImageKind::BareBitmap : ImageKind::None;
}

QImage DecodeImage(Bytes bytes, ImageKind kind) {
  switch (kind) {
    case ImageKind::Bitmap:
      return DecodeBmpFile(bytes);
    case ImageKind::BareBitmap:
      return DecodePackedDib(bytes);
    case ImageKind::Toolkit:
      return ReadToolkitImage(bytes);
    case ImageKind::Icon:
      return ReadIcon(Copy(bytes));
    case ImageKind::Cursor:
      if (bytes.size() < 6) throw OutOfBytes();
      return ReadIcon(CursorAsIcon(Copy(bytes)));
    case ImageKind::None:
      break;
  }
  throw BadDib("its content is none of a known picture format");
}

}  // namespace tarvis
