// What a metafile draws, once its records are decoded: a compact list of outlines, pictures and clips, in the
// units of the picture. It is only read once it is complete, so that any thread may paint it.
#pragma once

#include <QBrush>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QTransform>
#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <vector>

#include "pictures/metafile/fonts/outline_font.h"
#include "pictures/picture_budget.h"

namespace tarvis {

// A metafile that can't be shown at all; the text says why.
class BadMetafile : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

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

// A pen. Hairlines are as thin as the device shows well, and their dashes count in 1/96 inch.
struct ListPen {
  QPen Pen;          // all but the width
  double Width = 0;  // units of the picture
  bool Hairline = false;
  bool PlacedDashes = false;  // the dashes count in units of the picture, not in widths of the pen
  bool operator==(const ListPen&) const = default;
};

// A hatch of dots: 8 rows from the top, the leftmost dot in the highest bit.
using HatchDots = std::array<std::uint8_t, 8>;

inline bool HasDots(const HatchDots& dots) {
  return dots != HatchDots{};
}
inline bool IsDot(const HatchDots& dots, int x, int y) {
  return (dots[static_cast<std::size_t>(y)] >> (7 - x) & 1) != 0;
}

// A brush. Hatches and textures keep their physical size: a pixel of them is a dot of 1/96 inch.
struct ListBrush {
  QBrush Brush = QBrush();
  QColor Behind = QColor();  // between the lines of a hatch; invalid if nothing is
  double HatchStep = 8;      // dots from line to line of a hatch
  double HatchLine = 0;      // dots that a line of it is wide; 0 is a hairline
  HatchDots Dots{};          // in place of lines, if there are any; the brush has their colour
  bool Placed = false;       // the texture is mapped to the picture by the brush's transform instead
  bool operator==(const ListBrush&) const = default;
};

// All of `Paths`, cut with `Box` if there is one. No paths and no box: everything.
struct ListClip {
  bool HasBox = false;
  QRectF Box;
  std::vector<std::shared_ptr<const QPainterPath>> Paths;
};

struct ListImage {
  QImage Image;
  QRectF Source;     // pixels of the image
  QTransform Place;  // from pixels of the image to the picture
};

// A line of text in one font. All places are those of the picture.
struct ListText {
  std::u32string Characters;
  OutlineFont Font;
  std::vector<QPointF> Origins;  // of each character on the baseline, and where the line ends
  QTransform Em;                 // from ems along the baseline and down from it; without a translation
  QPointF Up, Down;              // from the baseline to the top of the line, and to its bottom
  QColor Color;
};

class DrawList;

// A picture inside the picture.
struct ListPart {
  std::shared_ptr<const DrawList> List;
  QRectF Frame;      // what is shown of it, in its own units
  QTransform Place;  // from its units to those of the picture around it
};

enum class ListKind : std::uint8_t { Shape, Image, Clip, Part };

struct ListCommand {
  ListKind Kind = ListKind::Shape;
  bool Winding = false;
  std::int32_t Pen = -1;    // none if below 0
  std::int32_t Brush = -1;  // none if below 0
  std::uint32_t Index = 0;  // of the outline, image, clip or part
  std::int32_t Text = -1;   // that the outline shows; none if below 0
};

class DrawList {
 public:
  // What is added is taken from `budget`, which must outlive the loading but not the list.
  explicit DrawList(PictureBudget& budget) : budget_(&budget) {}

  PictureBudget& Budget() { return *budget_; }
  // Coordinates are cut off two hundred times as far from the origin as the picture's frame extends.
  void SetFrameExtent(double extent) { reach_ = extent * ReachInFrames; }

  void AddShape(const QPainterPath& path, const ListPen* pen, const ListBrush* brush);
  // Text with its outline, for devices without fonts.
  void AddText(const QPainterPath& outline, ListText text);
  // `unit` is that of the record in units of the picture: as exact as its points are. Lines that go on where
  // the last one ended are joined, and dashes that a writer drew one by one become one dashed line.
  void AddPolyline(std::span<const QPointF> points, const ListPen& pen, double unit);
  // To be called after the last addition.
  void Finish() { FlushLines(); }
  void AddImage(ListImage image);
  // Its cost is taken again each time that it is added, for so often it is painted.
  void AddPart(ListPart part);
  // Takes back the last `count` images, if nothing else was added after the first of them.
  bool DropLastImages(std::size_t count);
  // Takes back all commands from `first` on.
  void Truncate(std::size_t first);
  // Holds for what is added after it.
  void SetClip(std::shared_ptr<const ListClip> clip);

  // Whether anything is drawn that white paper shows.
  bool ShowsInk() const;
  // The box around everything that is drawn, pens left aside.
  QRectF Bounds() const;

  const std::vector<ListCommand>& Commands() const { return commands_; }
  const ListPen& Pen(std::int32_t index) const { return pens_[static_cast<std::size_t>(index)]; }
  const ListBrush& Brush(std::int32_t index) const { return brushes_[static_cast<std::size_t>(index)]; }
  const ListText& Text(std::int32_t index) const { return texts_[static_cast<std::size_t>(index)]; }
  const std::vector<ListText>& Texts() const { return texts_; }
  const ListImage& Image(std::uint32_t index) const { return images_[index]; }
  const ListClip& Clip(std::uint32_t index) const { return *clips_[index]; }
  const ListPart& Part(std::uint32_t index) const { return parts_[index]; }
  const std::vector<ListPart>& Parts() const { return parts_; }
  const Outline& OutlineAt(std::uint32_t index) const { return outlines_[index]; }
  std::span<const ListPoint> Points(const Outline& outline) const {
    return std::span(points_).subspan(outline.FirstPoint, outline.PointCount);
  }
  std::span<const Verb> Verbs(const Outline& outline) const {
    return std::span(verbs_).subspan(outline.FirstVerb, outline.VerbCount);
  }

 private:
  static constexpr double ReachInFrames = 200;

  std::size_t PaintedElements() const;
  void FlushLines();
  void EmitLine(const QPolygonF& line, const ListPen& pen);
  void AddPoint(double x, double y);
  void AddCommand(ListCommand command);
  std::int32_t PenIndex(const ListPen* pen);
  std::int32_t BrushIndex(const ListBrush* brush);

  PictureBudget* budget_;
  std::vector<ListCommand> commands_;
  std::vector<ListPoint> points_;
  std::vector<Verb> verbs_;
  std::vector<Outline> outlines_;
  std::vector<ListPen> pens_;
  std::vector<ListBrush> brushes_;
  std::vector<ListImage> images_;
  std::vector<ListText> texts_;
  std::vector<std::shared_ptr<const ListClip>> clips_;
  std::vector<ListPart> parts_;
  std::size_t elementsOfParts_ = 0;
  std::shared_ptr<const ListClip> asked_;  // null: none
  std::shared_ptr<const ListClip> clip_;
  bool clipPending_ = false;
  std::vector<QPolygonF> lines_;  // with one pen, not yet in the list
  ListPen linePen_;
  double lineUnit_ = 1;
  double reach_ = 1e9;
};

}  // namespace tarvis
