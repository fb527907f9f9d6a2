// Writes the little-endian bytes of made-up picture files.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <bit>
#include <cstdint>
#include <string>

#include "pictures/paintable_picture.h"
#include "pictures/picture_file_loader.h"

namespace tarvis {

class ByteWriter {
 public:
  ByteWriter& U8(std::uint32_t value) {
    bytes_.push_back(static_cast<char>(value & 0xFF));
    return *this;
  }
  ByteWriter& U16(std::uint32_t value) { return U8(value).U8(value >> 8); }
  ByteWriter& U32(std::uint32_t value) { return U16(value).U16(value >> 16); }
  ByteWriter& I16(int value) { return U16(static_cast<std::uint32_t>(value)); }
  ByteWriter& I32(int value) { return U32(static_cast<std::uint32_t>(value)); }
  ByteWriter& F32(float value) { return U32(std::bit_cast<std::uint32_t>(value)); }
  ByteWriter& Text(const std::string& text) {
    bytes_ += text;
    return *this;
  }
  ByteWriter& Add(const ByteWriter& other) { return Text(other.bytes_); }
  ByteWriter& Zeros(std::size_t count) {
    bytes_.append(count, '\0');
    return *this;
  }
  ByteWriter& Align(std::size_t size) { return Zeros((size - bytes_.size() % size) % size); }

  std::size_t Size() const { return bytes_.size(); }
  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

// What `bytes` show on white paper of `size`.
inline QImage PaintedPicture(const std::string& bytes, QSize size) {
  PictureFileLoader loader;
  const PicturePtr picture = loader.LoadBytes("made up", bytes);
  QImage paper(size, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  static_cast<const PaintablePicture&>(*picture).Paint(painter, QRectF(QPointF(), QSizeF(size)));
  return paper;
}

}  // namespace tarvis
