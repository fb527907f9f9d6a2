// What a metafile draws, once its records are decoded: a compact list of outlines, pictures and clips, in the
// units of the picture. It is only read once it is complete, so that any thread may paint it.
#pragma once

#include <QImage>
#include <QPainterPath>
#include <QTransform>
#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <vector>

#include "pictures/metafile/fonts/outline_font.h"
#include "pictures/metafile/list/list_inks.h"
#include "pictures/metafile/list/outlines.h"
#include "pictures/shaped_text.h"

namespace tarvis {

// A metafile that can't be shown at all; the text says why.
class BadMetafile : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
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
  TextFlow Flow = TextFlow::Plain;
  OutlineFont Font;
  std::vector<QPointF> Origins;  // of each character on the baseline
  std::vector<QPointF> Ends;     // where each character ends; left of its origin if it runs to the left
  QTransform Em;                 // from ems along the baseline and down from it; without a translation
  QPointF Up, Down;              // from the baseline to the top of the line, and to its bottom
  QColor Color;
};

// The left edge of a cluster of a shaped line, by the places of its characters.
inline QPointF LeftOf(const TextCluster& cluster, const std::vector<QPointF>& origins,
                      const std::vector<QPointF>& ends) {
  if (!cluster.RunsToTheLeft) return origins[cluster.FirstCharacter];
  return ends[cluster.FirstCharacter + cluster.Text.size() - 1];
}

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
  void SetFrameExtent(double extent) {
    extent_ = extent;
    outlines_.SetReach(extent * ReachInFrames);
  }

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
  const ListInks& Inks() const { return inks_; }
  const Outlines& AllOutlines() const { return outlines_; }
  const std::vector<ListText>& Texts() const { return texts_; }
  const ListImage& Image(std::uint32_t index) const { return images_[index]; }
  const ListClip& Clip(std::uint32_t index) const { return *clips_[index]; }
  const std::vector<ListPart>& Parts() const { return parts_; }

 private:
  static constexpr double ReachInFrames = 200;

  std::size_t PaintedElements() const;
  void FlushLines();
  void EmitLine(const QPolygonF& line, const ListPen& pen);
  void AddCommand(ListCommand command);

  PictureBudget* budget_;
  std::vector<ListCommand> commands_;
  Outlines outlines_;
  ListInks inks_;
  std::vector<ListImage> images_;
  std::vector<ListText> texts_;
  std::vector<std::shared_ptr<const ListClip>> clips_;
  std::vector<ListPart> parts_;
  std::size_t elementsOfParts_ = 0;
  std::size_t imageBytes_ = 0;             // painted in all, also by parts
  std::shared_ptr<const ListClip> asked_;  // null: none
  std::shared_ptr<const ListClip> clip_;
  bool clipPending_ = false;
  std::vector<QPolygonF> lines_;  // with one pen, not yet in the list
  ListPen linePen_;
  double lineUnit_ = 1;
  double extent_ = 1e9 / ReachInFrames;  // of the frame
};

}  // namespace tarvis
