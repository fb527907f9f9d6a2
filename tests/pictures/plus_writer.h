// Writes made-up extended records of enhanced metafiles.
#pragma once

#include "metafile_writer.h"

namespace tarvis {

inline constexpr std::uint32_t PlusVersion = 0xDBC01002;

// Colors of extended records hold how opaque they are.
inline constexpr std::uint32_t OpaqueRed = 0xFFFF0000, OpaqueBlue = 0xFF0000FF, OpaqueWhite = 0xFFFFFFFF;

// The extended records of one comment.
class PlusWriter {
 public:
  explicit PlusWriter(bool dual = false) {
    Add(0x4001, dual ? 1 : 0, ByteWriter().U32(PlusVersion).U32(1).U32(96).U32(96));
  }
  PlusWriter& Add(std::uint32_t type, std::uint32_t flags, const ByteWriter& payload = {}) {
    ByteWriter padded = payload;
    padded.Align(4);
    const std::uint32_t size = static_cast<std::uint32_t>(padded.Size());
    records_.U16(type).U16(flags).U32(size + 12).U32(size).Add(padded);
    return *this;
  }
  PlusWriter& Object(std::uint32_t kind, std::uint32_t index, const ByteWriter& object) {
    return Add(0x4008, kind << 8 | index, object);
  }
  PlusWriter& Pen(std::uint32_t index, std::uint32_t color, float width) {
    ByteWriter pen;
    pen.U32(PlusVersion).U32(0).U32(0).U32(0).F32(width).U32(PlusVersion).U32(0).U32(color);
    return Object(2, index, pen);
  }
  PlusWriter& FillRect(std::uint32_t color, int x, int y, int width, int height) {
    return Add(0x400A, 0xC000, ByteWriter().U32(color).U32(1).I16(x).I16(y).I16(width).I16(height));
  }
  ByteWriter Comment() const {
    return ByteWriter().U32(static_cast<std::uint32_t>(records_.Size() + 4)).Text("EMF+").Add(records_);
  }
  EmfWriter Emf() const {
    EmfWriter emf;
    emf.Add(70, Comment());
    return emf;
  }
  QImage Show() const { return Emf().Show(); }

 private:
  ByteWriter records_;
};

}  // namespace tarvis
