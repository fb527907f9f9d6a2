#include "pictures/toolkit_image.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <string_view>

#include "pictures/dib_header.h"
#include "pictures/picture_budget.h"
#include "pictures/png_chunks.h"

namespace tarvis {
namespace {

using namespace std::string_view_literals;

constexpr int LargestSide = 0x8000;
constexpr std::size_t MostBytes = std::size_t{128} << 20;

// What metafiles and bitmaps may hold. The toolkit would find others by itself, such as drawings that are
// programs.
struct Format {
  std::string_view Start;
  const char* Name;
};
constexpr Format Formats[] = {{"\x89PNG"sv, "png"}, {"\xFF\xD8\xFF"sv, "jpeg"}, {"GIF8"sv, "gif"},
                              {"BM"sv, "bmp"},      {"II*\0"sv, "tiff"},        {"MM\0*"sv, "tiff"}};

std::string_view AsText(Bytes bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

const char* FormatOf(Bytes bytes) {
  const std::string_view text = AsText(bytes);
  for (const Format& format : Formats)
    if (text.starts_with(format.Start)) return format.Name;
  throw BadDib("its content is none of a known picture format");
}

// The toolkit fills what is missing of a cut JPEG with grey. No marker but its end follows the start of its
// last scan.
bool IsCutJpeg(Bytes bytes) {
  const std::string_view text = AsText(bytes);
  const std::size_t scan = text.rfind("\xFF\xDA");
  return text.starts_with("\xFF\xD8") && scan != text.npos && text.find("\xFF\xD9", scan) == text.npos;
}

// Each scan of a JPEG passes over the whole picture, even one of 20 bytes. Writers make ten or so.
bool HasTooManyScans(Bytes bytes) {
  constexpr int most = 100;
  const std::string_view text = AsText(bytes);
  if (!text.starts_with("\xFF\xD8")) return false;
  int scans = 0;
  for (std::size_t at = 0; (at = text.find("\xFF\xDA", at)) != text.npos; at += 2)
    if (++scans > most) return true;
  return false;
}

// A reader of bytes, which must outlive it. BadDib if they are of none of the formats.
class ToolkitReader {
 public:
  explicit ToolkitReader(Bytes bytes)
      : data_(ShownChunks(bytes)), buffer_(&data_), reader_(&buffer_, FormatOf(bytes)) {
    reader_.setAutoDetectImageFormat(false);
    reader_.setAutoTransform(true);
  }
  QImageReader* operator->() { return &reader_; }

 private:
  QByteArray data_;
  QBuffer buffer_;
  QImageReader reader_;
};

std::size_t DecodedSize(ToolkitReader& reader) {
  const QSize size = reader->size();
  if (!size.isValid()) return 0;
  if (size.width() > LargestSide || size.height() > LargestSide) throw TooCostly("it is too large");
  const int depth = QImage::toPixelFormat(reader->imageFormat()).bitsPerPixel();
  const std::size_t pixels = static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
  const std::size_t taken = pixels * static_cast<std::size_t>(std::max(depth, 32)) / 8;
  if (taken > MostBytes) throw TooCostly("it is too large");
  return taken;
}

}  // namespace

std::size_t ToolkitImageSize(Bytes bytes) {
  ToolkitReader reader(bytes);
  return DecodedSize(reader);
}

QImage ReadToolkitImage(Bytes bytes) {
  if (IsCutJpeg(bytes)) throw OutOfBytes();
  if (HasTooManyScans(bytes)) throw TooCostly("it holds a JPEG of too many scans");
  ToolkitReader reader(bytes);
  DecodedSize(reader);
  QImage image = reader->read();
  if (image.isNull()) throw BadDib(reader->errorString().toStdString());
  return image;
}

}  // namespace tarvis
