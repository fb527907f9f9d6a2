// Pens and brushes in an SVG file.
#pragma once

#include <QBrush>
#include <QPainterPath>
#include <QPen>
#include <QTransform>
#include <map>
#include <string>

namespace tarvis {

// A length, as precise as a page needs it.
std::string SvgNumber(double value);

// The data of a path element.
std::string SvgPath(const QPainterPath& path);

// The attribute that places what is painted by `transform`; empty for none.
std::string SvgTransform(const char* attribute, const QTransform& transform);

// The data of an image that is in the file itself.
std::string SvgImage(const QImage& image);

class SvgInks {
 public:
  // Attributes for the inside and for the outline of a shape. `opacity` counts besides that of the colours.
  std::string Fill(const QBrush& brush, double opacity);
  std::string Stroke(const QPen& pen, double opacity);

  // The elements to which these attributes refer.
  const std::string& Definitions() const { return definitions_; }

 private:
  std::string Paint(const char* attribute, const QBrush& brush, double opacity);
  std::string Define(const std::string& element, const std::string& rest);
  std::string Gradient(const QBrush& brush);
  std::string Pattern(const QBrush& brush);

  std::map<std::string, std::string> known_;  // reference by definition, so that each is written once
  std::string definitions_;
};

}  // namespace tarvis
