// Bounds-checked reading of little-endian bytes: no read of a picture file goes past its end.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <span>

namespace tarvis {

using Bytes = std::span<const std::uint8_t>;

// Thrown by ByteReader when a read would pass the end of its bytes.
class OutOfBytes : public std::exception {
 public:
  const char* what() const noexcept override { return "data ends too early"; }
};

// The part of `bytes` that starts at `offset`; OutOfBytes unless all of it lies inside.
inline Bytes Slice(Bytes bytes, std::size_t offset, std::size_t size) {
  if (offset > bytes.size() || size > bytes.size() - offset) throw OutOfBytes();
  return bytes.subspan(offset, size);
}

class ByteReader {
 public:
  explicit ByteReader(Bytes bytes) : bytes_(bytes) {}

  Bytes All() const { return bytes_; }
  std::size_t Position() const { return position_; }
  std::size_t Left() const { return bytes_.size() - position_; }

  void Seek(std::size_t position) {
    if (position > bytes_.size()) throw OutOfBytes();
    position_ = position;
  }
  void Skip(std::size_t count) { Take(count); }
  Bytes Take(std::size_t count) {
    const Bytes taken = Slice(bytes_, position_, count);
    position_ += count;
    return taken;
  }
  Bytes Rest() { return Take(Left()); }

  std::uint8_t U8() { return Take(1)[0]; }
  std::uint16_t U16() {
    const Bytes b = Take(2);
    return static_cast<std::uint16_t>(b[0] | b[1] << 8);
  }
  std::uint32_t U32() {
    const Bytes b = Take(4);
    return b[0] | static_cast<std::uint32_t>(b[1]) << 8 | static_cast<std::uint32_t>(b[2]) << 16 |
           static_cast<std::uint32_t>(b[3]) << 24;
  }
  std::int16_t I16() { return static_cast<std::int16_t>(U16()); }
  std::int32_t I32() { return static_cast<std::int32_t>(U32()); }
  float F32() { return std::bit_cast<float>(U32()); }

 private:
  Bytes bytes_;
  std::size_t position_ = 0;
};

}  // namespace tarvis
