#include "pictures/metafile/context/inks.h"

#include <cmath>

#include "pictures/metafile/context/raster_ops.h"

namespace tarvis {
namespace {

// In widths of the pen, or in dots for pens as thin as a dot.
struct DashTable {
  std::uint32_t Style;
  QList<qreal> Wide;
  QList<qreal> Thin;
};

const QList<DashTable>& Dashes() {
  static const QList<DashTable> table = {
      {penstyle::Dash, {3, 1}, {18, 6}},
      {penstyle::Dot, {1, 1}, {3, 3}},
      {penstyle::DashDot, {3, 1, 1, 1}, {9, 6, 3, 6}},
      {penstyle::DashDotDot, {3, 1, 1, 1, 1, 1}, {9, 3, 3, 3, 3, 3}},
      {penstyle::Alternate, {1, 1}, {1, 1}},
  };
  return table;
}

Qt::PenCapStyle CapOf(std::uint32_t style) {
  switch (style & penstyle::CapMask) {
    case penstyle::SquareCap:
      return Qt::SquareCap;
    case penstyle::FlatCap:
      return Qt::FlatCap;
    default:
      return Qt::RoundCap;
  }
}

Qt::PenJoinStyle JoinOf(std::uint32_t style) {
  switch (style & penstyle::JoinMask) {
    case penstyle::BevelJoin:
      return Qt::BevelJoin;
    case penstyle::MiterJoin:
      return Qt::SvgMiterJoin;
    default:
      return Qt::RoundJoin;
  }
}

// A pattern of two colours shows its 0 in the text's colour and its 1 in the background's.
QImage WithTextColors(QImage pattern, const DcState& state) {
  if (pattern.colorCount() >= 2) {
    pattern.setColor(0, state.TextColor.rgb());
    pattern.setColor(1, state.BackgroundColor.rgb());
  }
  return pattern;
}

// `width` is that of the pen in device units.
void SetDashes(const DeviceContext& context, QPen& pen, double width) {
  const MetaPen& meta = *context.State().Pen;
  const std::uint32_t style = meta.Style & penstyle::StyleMask;
  const bool geometric = (meta.Style & penstyle::Geometric) != 0;
  QList<qreal> dashes;
  if (style == penstyle::User) {
    const double unit = geometric && width > 0 ? context.Scale() / width : 1;
    for (const double dash : meta.Dashes) dashes.append(std::clamp(std::abs(dash) * unit, 0.0, 1e6));
    if (dashes.size() % 2 == 1) dashes.append(QList<qreal>(dashes));
  }
  for (const DashTable& entry : Dashes())
    if (entry.Style == style) dashes = geometric || width > 1.5 ? entry.Wide : entry.Thin;
  if (dashes.isEmpty()) return;
  if (!meta.Extended) pen.setCapStyle(Qt::FlatCap);
  pen.setDashPattern(dashes);
}

}  // namespace

std::optional<ListPen> CurrentPen(const DeviceContext& context) {
  const DcState& state = context.State();
  const MetaPen& meta = *state.Pen;
  if ((meta.Style & penstyle::StyleMask) == penstyle::Null || meta.Ink.Is == MetaBrush::Kind::Null)
    return std::nullopt;
  const std::optional<QColor> color = ColorOnWhite(state.Rop2, meta.Ink.Color);
  if (!color) return std::nullopt;
  const bool geometric = (meta.Style & penstyle::Geometric) != 0;
  // Cosmetic pens are one dot wide; some writers give a width all the same, and mean it.
  const bool thin = meta.Extended && !geometric && meta.Width <= 1;
  const double width = thin ? 0 : std::abs(meta.Width) * context.Scale();
  ListPen list;
  list.Hairline = width == 0;
  list.Pen = QPen(*color);
  list.Width = std::isfinite(width) ? std::min(width, 1e9) : 0;
  if (meta.Ink.Is == MetaBrush::Kind::Pattern) list.Pen.setBrush(QBrush(meta.Ink.Pattern));
  list.Pen.setCapStyle(CapOf(meta.Style));
  list.Pen.setJoinStyle(JoinOf(meta.Style));
  list.Pen.setMiterLimit(state.MiterLimit);
  SetDashes(context, list.Pen, width);
  return list;
}

std::optional<ListBrush> BrushFor(const MetaBrush& brush, const DcState& state) {
  if (brush.Is == MetaBrush::Kind::Null) return std::nullopt;
  if (brush.Is == MetaBrush::Kind::Pattern)
    return ListBrush{QBrush(brush.UsesTextColors ? WithTextColors(brush.Pattern, state) : brush.Pattern)};
  const std::optional<QColor> color = ColorOnWhite(state.Rop2, brush.Color);
  if (!color) return std::nullopt;
  ListBrush list{QBrush(*color, brush.Is == MetaBrush::Kind::Hatch ? brush.Hatch : Qt::SolidPattern)};
  if (brush.Is == MetaBrush::Kind::Hatch && state.BackgroundMode == Opaque)
    list.Background = state.BackgroundColor;
  return list;
}

}  // namespace tarvis
