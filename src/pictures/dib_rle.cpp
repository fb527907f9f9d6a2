#include "pictures/dib_rle.h"

namespace tarvis {
namespace {

class RleDecoder {
 public:
  RleDecoder(const DibHeader& header, Bytes bits)
      : header_(header), reader_(bits), image_(header.Width, header.Height, QImage::Format_Indexed8) {
    if (image_.isNull()) throw BadDib("there is no memory for it");
    image_.setColorTable(QList<QRgb>(header.Colors.begin(), header.Colors.end()));
    image_.fill(0);
  }

  QImage Decode() {
    while (!ended_ && reader_.Left() >= 2) {
      const int count = reader_.U8();
      const std::uint8_t value = reader_.U8();
      if (count > 0) {
        Run(count, value);
      } else {
        Escape(value);
      }
    }
    if (!ended_ && y_ + 1 < header_.Height) throw BadDib("its data end too early");
    return image_;
  }

 private:
  bool Four() const { return header_.Compression == DibCompression::Rle4; }

  void Put(unsigned index) {
    if (x_ < header_.Width && y_ < header_.Height)
      image_.scanLine(header_.TopDown ? y_ : header_.Height - 1 - y_)[x_] = static_cast<uchar>(index);
    ++x_;
  }

  void PutNibble(std::uint8_t value, int i) { Put(i % 2 == 0 ? value >> 4u : value & 15u); }

  void Run(int count, std::uint8_t value) {
    for (int i = 0; i < count; ++i) Four() ? PutNibble(value, i) : Put(value);
  }

  void Escape(std::uint8_t code) {
    if (code == 0) {
      x_ = 0;
      ++y_;
    } else if (code == 1) {
      ended_ = true;
    } else if (code == 2) {
      x_ += reader_.U8();
      y_ += reader_.U8();
    } else {
      Literal(code);
    }
    if (y_ >= header_.Height) ended_ = true;
  }

  void Literal(int count) {
    const auto size = static_cast<std::size_t>(Four() ? (count + 1) / 2 : count);
    const Bytes values = reader_.Take(size);
    for (int i = 0; i < count; ++i) {
      const auto at = static_cast<std::size_t>(Four() ? i / 2 : i);
      Four() ? PutNibble(values[at], i) : Put(values[at]);
    }
    if (size % 2 == 1 && reader_.Left() > 0) reader_.Skip(1);
  }

  const DibHeader& header_;
  ByteReader reader_;
  QImage image_;
  int x_ = 0;
  int y_ = 0;
  bool ended_ = false;
};

}  // namespace

QImage DecodeRle(const DibHeader& header, Bytes bits) {
  const int wanted = header.Compression == DibCompression::Rle4 ? 4 : 8;
  if (header.BitCount != wanted) throw BadDib("its compression doesn't fit its bits a pixel");
  return RleDecoder(header, bits).Decode();
}

}  // namespace tarvis
