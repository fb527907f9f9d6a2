#include "pictures/metafile/context/raster_ops.h"

#include <QColor>

namespace tarvis {
namespace {

constexpr QRgb ColorBits = 0xFFFFFF;

// The truth table of a ternary operation: bit (P << 2 | S << 1 | D) is the result.
class Truth {
 public:
  explicit Truth(std::uint32_t rop3) : table_(rop3 >> 16 & 0xFF) {}

  bool At(unsigned p, unsigned s, unsigned d) const { return (table_ >> (p << 2 | s << 1 | d) & 1) != 0; }
  bool KeepsPaper(unsigned p, unsigned s) const { return !At(p, s, 0) && At(p, s, 1); }

  // The bits in which pattern and source are `p` and `s`.
  static QRgb Bits(QRgb pattern, QRgb source, unsigned p, unsigned s) {
    return (p != 0 ? pattern : ~pattern) & (s != 0 ? source : ~source) & ColorBits;
  }

  QRgb Result(QRgb pattern, QRgb source, unsigned paper) const {
    QRgb result = 0;
    for (const unsigned p : {0u, 1u})
      for (const unsigned s : {0u, 1u})
        if (At(p, s, paper)) result |= Bits(pattern, source, p, s);
    return result;
  }

  bool LeavesAlone(QRgb pattern, QRgb source) const {
    QRgb alone = 0;
    for (const unsigned p : {0u, 1u})
      for (const unsigned s : {0u, 1u})
        if (KeepsPaper(p, s)) alone |= Bits(pattern, source, p, s);
    return alone == ColorBits;
  }

 private:
  std::uint32_t table_;
};

// A binary operation as a ternary one that has no source.
std::uint32_t AsTernary(std::uint32_t rop2) {
  const std::uint32_t table = (rop2 - 1) & 15;  // bit (P << 1 | D)
  const std::uint32_t low = table & 3;
  const std::uint32_t high = table >> 2;
  return (low | low << 2 | high << 4 | high << 6) << 16;
}

}  // namespace

std::optional<QColor> ColorOnWhite(std::uint32_t rop2, QColor color) {
  return rop2 == CopyPen || rop2 == 0 ? color : PatternOnWhite(AsTernary(rop2), color);
}

bool UsesSource(std::uint32_t rop3) {
  const std::uint32_t table = rop3 >> 16 & 0xFF;
  return ((table >> 2 ^ table) & 0x33) != 0;
}

std::optional<QColor> PatternOnWhite(std::uint32_t rop3, QColor pattern) {
  const Truth truth(rop3);
  const QRgb color = pattern.rgb();
  if (truth.LeavesAlone(color, 0)) return std::nullopt;
  return QColor::fromRgb(truth.Result(color, 0, 1));
}

QImage SourceOnWhite(std::uint32_t rop3, const QImage& source, QColor pattern) {
  if ((rop3 >> 16 & 0xFF) == SourceCopy >> 16) return source;
  const Truth truth(rop3);
  const QRgb brush = pattern.rgb();
  // Pictures are ORed over the black hole that their mask left, never over white.
  const std::uint32_t code = rop3 >> 16 & 0xFF;
  const unsigned paper = code == SourcePaint >> 16 || code == MergePaint >> 16 ? 0 : 1;
  QImage seen = source.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < seen.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(seen.scanLine(y));
    for (int x = 0; x < seen.width(); ++x) {
      const bool alone = truth.LeavesAlone(brush, row[x]);
      row[x] = alone ? 0 : 0xFF000000 | truth.Result(brush, row[x], paper);
    }
  }
  return seen;
}

}  // namespace tarvis
