#include "pictures/toolkit_image.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <string_view>

#include "pictures/dib_header.h"

namespace tarvis {
namespace {

constexpr int LargestSide = 0x8000;
constexpr std::size_t MostBytes = std::size_t{128} << 20;

// The toolkit fills what is missing of a cut JPEG with grey. No marker but its end follows the start of its
// last scan.
bool IsCutJpeg(Bytes bytes) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const std::size_t scan = text.rfind("\xFF\xDA");
  return text.starts_with("\xFF\xD8") && scan != text.npos && text.find("\xFF\xD9", scan) == text.npos;
}

// A reader of bytes, which must outlive it.
class ToolkitReader {
 public:
  explicit ToolkitReader(Bytes bytes)
      : data_(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                      static_cast<qsizetype>(bytes.size()))),
        buffer_(&data_),
        reader_(&buffer_) {
    reader_.setAutoTransform(true);
  }
  QImageReader* operator->() { return &reader_; }

 private:
  QByteArray data_;
  QBuffer buffer_;
  QImageReader reader_;
};

}  // namespace

std::size_t ToolkitImageSize(Bytes bytes) {
  ToolkitReader reader(bytes);
  const QSize size = reader->size();
  if (!size.isValid()) return 0;
  if (size.width() > LargestSide || size.height() > LargestSide) throw BadDib("it is too large");
  const int depth = QImage::toPixelFormat(reader->imageFormat()).bitsPerPixel();
  const std::size_t pixels = static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
  const std::size_t taken = pixels * static_cast<std::size_t>(std::max(depth, 32)) / 8;
  if (taken > MostBytes) throw BadDib("it is too large");
  return taken;
}

QImage ReadToolkitImage(Bytes bytes) {
  if (IsCutJpeg(bytes)) throw OutOfBytes();
  ToolkitImageSize(bytes);
  ToolkitReader reader(bytes);
  QImage image = reader->read();
  if (image.isNull()) throw BadDib(reader->errorString().toStdString());
  return image;
}

}  // namespace tarvis
