// The outlines of a draw list, kept compactly one after the other.
#pragma once

#include <QPainterPath>
#include <QPolygonF>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tarvis {

struct ListPoint {
  float X = 0;
  float Y = 0;
};

enum class Verb : std::uint8_t { Move, Line, Curve, Close };  // Curve takes three points, Close none

// Points and verbs of an outline in the list. Without verbs it is one open line through its points.
struct Outline {
  std::uint32_t FirstPoint = 0;
  std::uint32_t PointCount = 0;
  std::uint32_t FirstVerb = 0;
  std::uint32_t VerbCount = 0;
};

// How many things a list holds, or the number of one: its budget keeps all sizes far below 32 bits.
constexpr std::uint32_t ListNumber(std::size_t size) {
  return static_cast<std::uint32_t>(size);
}

// The way along the corners of an open line.
double LengthOf(const QPolygonF& line);

class Outlines {
 public:
  // Coordinates are cut off as far from the origin.
  void SetReach(double reach) { reach_ = reach; }

  // The memory that these will take.
  static std::size_t BytesOf(const QPainterPath& path);
  static std::size_t BytesOf(const QPolygonF& line);
  // Both return the number of the new outline.
  std::uint32_t Add(const QPainterPath& path);
  std::uint32_t Add(const QPolygonF& line);

  const Outline& At(std::uint32_t index) const { return outlines_[index]; }
  std::span<const ListPoint> Points(const Outline& outline) const {
    return std::span(points_).subspan(outline.FirstPoint, outline.PointCount);
  }
  std::span<const Verb> Verbs(const Outline& outline) const {
    return std::span(verbs_).subspan(outline.FirstVerb, outline.VerbCount);
  }
  std::size_t PointCount() const { return points_.size(); }
  // Null if there are no points.
  QRectF Bounds() const;

 private:
  void AddPoint(double x, double y);

  std::vector<ListPoint> points_;
  std::vector<Verb> verbs_;
  std::vector<Outline> outlines_;
  double reach_ = 1e9;
};

}  // namespace tarvis
