// The header of a device-independent bitmap, in all its editions.
#pragma once

#include <QtGui/qrgb.h>

#include <array>
#include <stdexcept>
#include <vector>

#include "pictures/byte_reader.h"

namespace tarvis {

// A bitmap that can't be shown; the text says why.
class BadDib : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class DibCompression : std::uint32_t {
  None = 0,
  Rle8 = 1,
  Rle4 = 2,
  BitFields = 3,
  Jpeg = 4,
  Png = 5,
  AlphaBitFields = 6
};

// What the colour table of a bitmap holds.
enum class DibColors : std::uint32_t { Rgb = 0, PaletteIndexes = 1, ForegroundBackground = 2 };

struct DibHeader {
  std::int32_t Width = 0;
  std::int32_t Height = 0;  // above 0; see TopDown
  bool TopDown = false;
  int BitCount = 0;
  DibCompression Compression = DibCompression::None;
  std::array<std::uint32_t, 4> Masks{};  // red, green, blue, alpha; all 0 unless the bitmap has them
  std::vector<QRgb> Colors;              // 2 to the power of BitCount entries up to 8 bits, else none
  std::size_t Size = 0;  // of header, masks and colour table: where the bits of a packed bitmap start

  std::size_t Stride() const {
    return (static_cast<std::size_t>(Width) * static_cast<std::size_t>(BitCount) + 31) / 32 * 4;
  }
};

// Whether `bytes` start with a bitmap header that makes sense.
bool LooksLikeDib(Bytes bytes);

// BadDib or OutOfBytes if the header makes no sense or the picture is too large to be held.
// `palette` replaces colour indexes where `colors` says that the table holds such.
DibHeader ReadDibHeader(Bytes bytes, DibColors colors = DibColors::Rgb, std::span<const QRgb> palette = {});

}  // namespace tarvis
