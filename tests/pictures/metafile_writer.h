// Writes made-up metafiles, record by record.
#pragma once

#include "byte_writer.h"
#include "pictures/metafile/fonts/glyph_outlines.h"
#include "pictures/metafile/list/metafile_picture.h"

namespace tarvis {

inline constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8 | blue << 16;
}
inline constexpr std::uint32_t RedInk = Rgb(255, 0, 0), GreenInk = Rgb(0, 255, 0), BlueInk = Rgb(0, 0, 255);

inline ByteWriter Box32(int left, int top, int right, int bottom) {
  return ByteWriter().I32(left).I32(top).I32(right).I32(bottom);
}

// An enhanced metafile of 100 by 100 pixels of its device, which has a pixel to the millimetre.
class EmfWriter {
 public:
  EmfWriter& Add(std::uint32_t type, const ByteWriter& payload = {}) {
    ByteWriter padded = payload;
    padded.Align(4);
    records_.U32(type).U32(static_cast<std::uint32_t>(padded.Size() + 8)).Add(padded);
    ++count_;
    return *this;
  }
  EmfWriter& Frame(int left, int top, int right, int bottom) {
    frame_ = Box32(left, top, right, bottom);
    return *this;
  }
  EmfWriter& Bounds(int left, int top, int right, int bottom) {
    bounds_ = Box32(left, top, right, bottom);
    return *this;
  }

  // Objects get the numbers 1, 2, 3... and are selected at once.
  EmfWriter& Brush(std::uint32_t color, std::uint32_t style = 0, std::uint32_t hatch = 0) {
    const std::uint32_t index = ++objects_;
    return Add(39, ByteWriter().U32(index).U32(style).U32(color).U32(hatch)).Select(index);
  }
  EmfWriter& Pen(std::uint32_t color, int width = 0, std::uint32_t style = 0) {
    const std::uint32_t index = ++objects_;
    return Add(38, ByteWriter().U32(index).U32(style).I32(width).I32(0).U32(color)).Select(index);
  }
  EmfWriter& WidePen(std::uint32_t color, std::uint32_t width, std::uint32_t style,
                     const std::vector<std::uint32_t>& dashes = {}) {
    const std::uint32_t index = ++objects_;
    ByteWriter pen;
    pen.U32(index).Zeros(16).U32(style).U32(width).U32(0).U32(color).U32(0).U32(
        static_cast<std::uint32_t>(dashes.size()));
    for (const std::uint32_t dash : dashes) pen.U32(dash);
    return Add(95, pen).Select(index);
  }
  EmfWriter& Font(int height, const std::string& face, int escapement = 0, std::uint32_t charset = 0,
                  int width = 0) {
    const std::uint32_t index = ++objects_;
    ByteWriter font;
    font.U32(index)
        .I32(height)
        .I32(width)
        .I32(escapement)
        .I32(escapement)
        .I32(400)
        .U8(0)
        .U8(0)
        .U8(0)
        .U8(charset)
        .U32(0);
    for (const char c : face) font.U16(static_cast<unsigned char>(c));
    font.Zeros(64 - 2 * face.size());
    return Add(82, font).Select(index);
  }
  EmfWriter& Select(std::uint32_t index) { return Add(37, ByteWriter().U32(index)); }
  EmfWriter& NoPen() { return Select(0x80000008); }
  EmfWriter& NoBrush() { return Select(0x80000005); }
  EmfWriter& Rectangle(int left, int top, int right, int bottom) {
    return Add(43, Box32(left, top, right, bottom));
  }
  EmfWriter& Set(std::uint32_t type, std::uint32_t value) { return Add(type, ByteWriter().U32(value)); }
  EmfWriter& Pair(std::uint32_t type, int x, int y) { return Add(type, ByteWriter().I32(x).I32(y)); }
  EmfWriter& Text(int x, int y, const std::string& text, const std::vector<int>& advances = {},
                  std::uint32_t options = 0, const ByteWriter& box = Box32(0, 0, 0, 0)) {
    std::u16string units;
    for (const char c : text) units += static_cast<unsigned char>(c);
    return Units(x, y, units, advances, options, box);
  }
  EmfWriter& Units(int x, int y, const std::u16string& text, const std::vector<int>& advances = {},
                   std::uint32_t options = 0, const ByteWriter& box = Box32(0, 0, 0, 0)) {
    const std::size_t textSize = (text.size() * 2 + 3) / 4 * 4;
    ByteWriter out = Box32(0, 0, 0, 0).U32(1).F32(1).F32(1).I32(x).I32(y);
    out.U32(static_cast<std::uint32_t>(text.size())).U32(76).U32(options).Add(box);
    out.U32(advances.empty() ? 0 : static_cast<std::uint32_t>(76 + textSize));
    for (const char16_t unit : text) out.U16(unit);
    out.Align(4);
    for (const int advance : advances) out.I32(advance);
    return Add(84, out);
  }

  std::string Bytes(bool end = true) const {
    ByteWriter body = records_;
    if (end) body.U32(14).U32(20).U32(0).U32(16).U32(20);
    ByteWriter out;
    out.U32(1).U32(88).Add(bounds_).Add(frame_).Text(" EMF").U32(0x10000);
    out.U32(static_cast<std::uint32_t>(88 + body.Size())).U32(count_ + 2).U16(objects_ + 1).U16(0);
    out.Zeros(12).I32(100).I32(100).I32(100).I32(100);
    return out.Add(body).Bytes();
  }
  QImage Show(QSize size = {100, 100}) const { return PaintedPicture(Bytes(), size); }

 private:
  ByteWriter records_;
  ByteWriter frame_ = Box32(0, 0, 10000, 10000);
  ByteWriter bounds_ = Box32(0, 0, 99, 99);
  std::uint32_t count_ = 0;
  std::uint32_t objects_ = 0;
};

// An old-style metafile with a window of 100 by 100, placeable if asked.
class WmfWriter {
 public:
  WmfWriter& Add(std::uint32_t function, const ByteWriter& payload = {}) {
    ByteWriter padded = payload;
    padded.Align(2);
    records_.U32(static_cast<std::uint32_t>(padded.Size() / 2 + 3)).U16(function).Add(padded);
    return *this;
  }
  WmfWriter& Placeable(int left, int top, int right, int bottom, std::uint32_t inch) {
    placeable_ =
        ByteWriter().U32(0x9AC6CDD7).U16(0).I16(left).I16(top).I16(right).I16(bottom).U16(inch).U32(0).U16(0);
    return *this;
  }
  WmfWriter& Window(int x, int y, int width, int height) {
    return Words(0x020B, {y, x}).Words(0x020C, {height, width});
  }
  WmfWriter& Words(std::uint32_t function, const std::vector<int>& words) {
    ByteWriter payload;
    for (const int word : words) payload.I16(word);
    return Add(function, payload);
  }
  WmfWriter& Brush(std::uint32_t color, std::uint32_t style = 0, std::uint32_t hatch = 0) {
    return Add(0x02FC, ByteWriter().U16(style).U32(color).U16(hatch)).Words(0x012D, {objects_++});
  }
  WmfWriter& Pen(std::uint32_t color, int width = 0, std::uint32_t style = 0) {
    return Add(0x02FA, ByteWriter().U16(style).I16(width).I16(0).U32(color)).Words(0x012D, {objects_++});
  }
  WmfWriter& NoPen() { return Pen(0, 0, 5); }
  WmfWriter& Font(int height, const std::string& face, std::uint32_t charset = 0) {
    ByteWriter font;
    font.I16(height).I16(0).I16(0).I16(0).I16(400).U8(0).U8(0).U8(0).U8(charset).U32(0).Text(face).U8(0);
    return Add(0x02FB, font).Words(0x012D, {objects_++});
  }

  std::string Bytes(bool end = true) const {
    ByteWriter body = records_;
    if (end) body.U32(3).U16(0);
    ByteWriter out = placeable_;
    out.U16(1).U16(9).U16(0x300).U32(static_cast<std::uint32_t>(9 + body.Size() / 2)).U16(16).U32(0).U16(0);
    return out.Add(body).Bytes();
  }
  QImage Show(QSize size = {100, 100}) const { return PaintedPicture(Bytes(), size); }

 private:
  ByteWriter records_;
  ByteWriter placeable_;
  int objects_ = 0;
};

inline std::shared_ptr<const MetafilePicture> Play(const std::string& bytes) {
  GlyphOutlines glyphs;
  PictureBudget budget;
  const Bytes view(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return LooksLikeEmf(view) ? LoadEmf(view, glyphs, budget) : LoadWmf(view, glyphs, budget);
}

// A bitmap of 24 bits: header and rows, bottom row first, all pixels as `color(x, y)` gives them with y from
// the top.
template <typename Color>
ByteWriter Dib24(int width, int height, Color color) {
  ByteWriter out;
  out.I32(40).I32(width).I32(height).U16(1).U16(24).Zeros(24);
  for (int y = height - 1; y >= 0; --y) {
    for (int x = 0; x < width; ++x) {
      const QColor pixel = color(x, y);
      out.U8(static_cast<std::uint32_t>(pixel.blue()))
          .U8(static_cast<std::uint32_t>(pixel.green()))
          .U8(static_cast<std::uint32_t>(pixel.red()));
    }
    out.Zeros(static_cast<std::size_t>(width % 4));
  }
  return out;
}

// Ink on white paper: the number of pixels that aren't white.
inline int InkedPixels(const QImage& image, QRect part = {}) {
  int count = 0;
  if (part.isNull()) part = image.rect();
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x)
      count += (image.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF ? 1 : 0;
  return count;
}

}  // namespace tarvis
