#include "preview/output/svg_inks.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include "preview/output/pdf_numbers.h"

namespace tarvis {
namespace {

constexpr int TileSide = 8;  // pixels of the toolkit's own patterns

// Matrices and opacities need more than the two decimals of places.
std::string Fine(double value) {
  return QByteArray::number(value, 'g', 7).toStdString();
}

std::string Attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + '"';
}

std::string ColorAttributes(const char* attribute, const QColor& color, double opacity) {
  std::string text = Attribute(attribute, color.name().toStdString());
  const double alpha = color.alphaF() * opacity;
  if (alpha < 1) text += Attribute((std::string(attribute) + "-opacity").c_str(), Fine(alpha));
  return text;
}

std::string Stops(const QGradient& gradient) {
  std::string text;
  for (const auto& [place, color] : gradient.stops())
    text += "<stop" + Attribute("offset", Fine(place)) + ColorAttributes("stop-color", color, 1) + "/>";
  return text;
}

const char* Spread(const QGradient& gradient) {
  if (gradient.spread() == QGradient::RepeatSpread) return "repeat";
  return gradient.spread() == QGradient::ReflectSpread ? "reflect" : "pad";
}

// One tile of a brush that repeats itself.
QImage TileOf(const QBrush& brush) {
  if (brush.style() == Qt::TexturePattern) return brush.textureImage();
  QImage tile(TileSide, TileSide, QImage::Format_ARGB32_Premultiplied);
  tile.fill(Qt::transparent);
  QPainter(&tile).fillRect(tile.rect(), QBrush(brush.color(), brush.style()));
  return tile;
}

}  // namespace

std::string SvgNumber(double value) {
  std::string text;
  AppendNumber(text, value);
  text.pop_back();
  return text;
}

std::string SvgPath(const QPainterPath& path) {
  std::string data;
  for (int index = 0; index < path.elementCount(); ++index) {
    const QPainterPath::Element element = path.elementAt(index);
    if (element.isMoveTo()) data += 'M';
    if (element.isLineTo()) data += 'L';
    if (element.isCurveTo()) data += 'C';
    AppendNumber(data, element.x);
    AppendNumber(data, element.y);
  }
  return data;
}

std::string SvgTransform(const char* attribute, const QTransform& transform) {
  if (transform.isIdentity()) return {};
  std::string matrix = "matrix(";
  for (const double value :
       {transform.m11(), transform.m12(), transform.m21(), transform.m22(), transform.dx(), transform.dy()})
    matrix += Fine(value) + ' ';
  matrix.back() = ')';
  return Attribute(attribute, matrix);
}

std::string SvgImage(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return Attribute("xlink:href", "data:image/png;base64," + bytes.toBase64().toStdString());
}

std::string SvgInks::Define(const std::string& element, const std::string& rest) {
  const auto [known, isNew] = known_.try_emplace(element + rest);
  if (isNew) {
    const std::string name = "ink" + std::to_string(known_.size());
    known->second = "url(#" + name + ")";
    definitions_ += '<' + element + Attribute("id", name) + rest + "</" + element + ">\n";
  }
  return known->second;
}

std::string SvgInks::Gradient(const QBrush& brush) {
  const QGradient& gradient = *brush.gradient();
  std::string places = Attribute("gradientUnits", "userSpaceOnUse") +
                       Attribute("spreadMethod", Spread(gradient)) +
                       SvgTransform("gradientTransform", brush.transform());
  if (gradient.type() == QGradient::RadialGradient) {
    const auto& radial = static_cast<const QRadialGradient&>(gradient);
    places += Attribute("cx", SvgNumber(radial.center().x())) +
              Attribute("cy", SvgNumber(radial.center().y())) + Attribute("r", SvgNumber(radial.radius())) +
              Attribute("fx", SvgNumber(radial.focalPoint().x())) +
              Attribute("fy", SvgNumber(radial.focalPoint().y()));
    return Define("radialGradient", places + '>' + Stops(gradient));
  }
  const auto& linear = static_cast<const QLinearGradient&>(gradient);
  places += Attribute("x1", SvgNumber(linear.start().x())) + Attribute("y1", SvgNumber(linear.start().y())) +
            Attribute("x2", SvgNumber(linear.finalStop().x())) +
            Attribute("y2", SvgNumber(linear.finalStop().y()));
  return Define("linearGradient", places + '>' + Stops(gradient));
}

std::string SvgInks::Pattern(const QBrush& brush) {
  const QImage tile = TileOf(brush);
  const std::string size =
      Attribute("width", SvgNumber(tile.width())) + Attribute("height", SvgNumber(tile.height()));
  return Define("pattern", Attribute("patternUnits", "userSpaceOnUse") + size +
                               SvgTransform("patternTransform", brush.transform()) + "><image" + size +
                               SvgImage(tile) + "/>");
}

std::string SvgInks::Paint(const char* attribute, const QBrush& brush, double opacity) {
  if (brush.style() == Qt::NoBrush) return Attribute(attribute, "none");
  if (brush.style() == Qt::SolidPattern) return ColorAttributes(attribute, brush.color(), opacity);
  // The painting has neither conical gradients nor any that go by the shape.
  std::string text = Attribute(attribute, brush.gradient() != nullptr ? Gradient(brush) : Pattern(brush));
  if (opacity < 1) text += Attribute((std::string(attribute) + "-opacity").c_str(), Fine(opacity));
  return text;
}

std::string SvgInks::Fill(const QBrush& brush, double opacity) {
  return Paint("fill", brush, opacity);
}

std::string SvgInks::Stroke(const QPen& pen, double opacity) {
  if (pen.style() == Qt::NoPen) return {};
  const double width = pen.widthF() > 0 ? pen.widthF() : 1;
  std::string text = Paint("stroke", pen.brush(), opacity) + Attribute("stroke-width", SvgNumber(width));
  if (pen.capStyle() != Qt::FlatCap)
    text += Attribute("stroke-linecap", pen.capStyle() == Qt::RoundCap ? "round" : "square");
  if (pen.joinStyle() == Qt::RoundJoin) text += Attribute("stroke-linejoin", "round");
  if (pen.joinStyle() == Qt::BevelJoin) text += Attribute("stroke-linejoin", "bevel");
  if (pen.style() == Qt::SolidLine) return text;
  std::string dashes;
  for (const double dash : pen.dashPattern()) AppendNumber(dashes, dash * width);
  dashes.pop_back();
  return text + Attribute("stroke-dasharray", dashes) +
         Attribute("stroke-dashoffset", SvgNumber(pen.dashOffset() * width));
}

}  // namespace tarvis
