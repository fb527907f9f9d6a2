// Draws in a device context, in logical units, onto a draw list. Both metafile formats play through it.
#pragma once

#include "pictures/metafile/context/device_context.h"
#include "pictures/metafile/context/geometry.h"
#include "pictures/metafile/fonts/charset.h"
#include "pictures/metafile/fonts/glyph_outlines.h"

namespace tarvis {

class MetafilePicture;

using Points = std::vector<QPointF>;

struct TextRecord {
  QPointF Reference;
  std::vector<TextCharacter> Text;
  std::vector<double> Advances;  // one for each unit of the record's text, or none
  std::vector<double> Rises;     // the same, upwards
  std::uint32_t Options = 0;
  QRectF Box;
};

// Options of text records.
inline constexpr std::uint32_t TextOpaque = 2, TextClipped = 4, TextGlyphIndexes = 0x10, TextPairs = 0x2000,
                               TextNoBox = 0x100, TextSmall = 0x200;

// A bitmap on its way into the picture.
struct BlockRecord {
  QImage Image;
  QRectF Source;       // pixels
  QRectF Destination;  // logical units; either size may be below 0
  std::uint32_t Rop = 0;
};

enum class ClipMode : std::uint32_t { And = 1, Or = 2, Xor = 3, Difference = 4, Copy = 5 };

class Drawing {
 public:
  Drawing(DrawList& list, GlyphOutlines& glyphs) : list_(list), glyphs_(glyphs) {}

  DeviceContext& Dc() { return dc_; }
  PictureBudget& Budget() { return list_.Budget(); }
  GlyphOutlines& Glyphs() { return glyphs_; }
  DcState& State() { return dc_.State(); }
  const DcState& State() const { return dc_.State(); }
  void Select(const MetaObject& object);
  // The boxes of a region as a path, in its own units.
  QPainterPath RegionPath(const MetaRegion& region);

  // Lines and shapes.
  void MoveTo(QPointF point);
  void LineTo(QPointF point);
  void Polyline(const Points& points);
  void PolylineTo(const Points& points);
  void Bezier(const Points& points, bool fromPosition);
  void Polygons(const std::vector<Points>& polygons);
  void PolyPolyline(const std::vector<Points>& lines);
  void Shape(const QPainterPath& logical, bool fill, bool stroke);
  void Rectangle(const QRectF& box);
  void RoundRectangle(const QRectF& box, QSizeF corner);
  void Ellipse(const QRectF& box);
  void Arc(const ArcShape& arc, ArcKind kind, bool to);
  // With a pen and brush of their own, in device units.
  void Paint(const QPainterPath& logical, const ListPen* pen, const ListBrush* brush);
  void Pixel(QPointF point, QColor color);
  void FillBox(const QRectF& box, QColor color);
  void FillRegion(const MetaRegion& region, const MetaBrush& brush);
  void FrameRegion(const MetaRegion& region, const MetaBrush& brush, QSizeF size);
  void InvertRegion(const MetaRegion& region);

  // The path bracket.
  void BeginPath();
  void EndPath() { inPath_ = false; }
  void AbortPath();
  void CloseFigure();
  void DrawPath(bool fill, bool stroke);
  void WidenPath();
  void ClipToPath(ClipMode mode);

  // Clips. Regions are in device units.
  void IntersectClip(const QRectF& box);
  void ExcludeClip(const QRectF& box);
  void OffsetClip(QPointF by);
  void SelectClip(const QPainterPath& device, ClipMode mode);
  void ResetClip() { State().Clip = State().MetaClip; }
  void SetMetaClip() { State().MetaClip = State().Clip; }

  void Text(const TextRecord& text);
  // Of the line that it would draw, in logical units.
  double TextWidth(const TextRecord& text);

  // Pictures and fills of areas.
  void Block(BlockRecord block);
  void PatternBlock(const QRectF& box, std::uint32_t rop);
  void Parallelogram(const QImage& image, const QRectF& source, const Points& corners);
  // `source` is in the units of the inner picture; it goes to the parallelogram of `corners`, of which there
  // are at least three.
  void Inner(const std::shared_ptr<const MetafilePicture>& picture, QRectF source, const Points& corners);
  void GradientBox(const QRectF& box, QColor from, QColor to, bool down);
  void GradientTriangle(const Points& corners, const std::vector<QColor>& colors);

 private:
  struct TextPlace;
  // Fills XORed, then a black mask, then the same fills again: so writers without clips cut a gradient to a
  // shape.
  struct XorGroup {
    std::size_t First = 0;  // command of the list
    std::size_t Count = 0;  // fills before the mask; 0: no group
    bool HasMask = false;
    QPainterPath Mask;
    std::vector<std::pair<QPainterPath, QColor>> Again;
  };
  struct LastBlock {
    std::uint32_t Rop;
    QRectF Box;
    QImage Image;
    QTransform Place;
  };

  QTransform ToDevice() const { return dc_.ToDevice(); }
  void Emit(const QPainterPath& device, bool fill, bool stroke);
  void EmitFill(const QPainterPath& device, const MetaBrush& brush);
  void JoinPath(QPointF device);
  void ContinuePath(const QPainterPath& device);
  bool MakePen(ListPen& list) const;
  bool MakeBrush(const MetaBrush& brush, ListBrush& list) const;
  void SetDashes(QPen& pen, double width) const;
  std::shared_ptr<ListClip> CopyOfClip() const;
  void AddClipPath(const QPainterPath& device);
  void CombineClip(const QPainterPath& device, ClipMode mode);
  void DrawGlyphs(const TextRecord& text, const TextPlace& place);
  void DrawTextLines(const TextPlace& place);
  std::vector<QPointF> GlyphPlaces(const TextRecord& text, TextPlace& place);
  TextPlace PlaceText(const TextRecord& text);
  TextRecord WithCharacters(const TextRecord& text);
  bool MergeMask(const LastBlock& block);
  void FollowXorFill(const QPainterPath& device);
  void FollowCopyFill(const QPainterPath& device);
  void DrawMaskedFills();
  void PlaceImage(QImage image, QTransform place);

  DrawList& list_;
  GlyphOutlines& glyphs_;
  DeviceContext dc_;
  QPainterPath path_;
  bool inPath_ = false;
  XorGroup xor_;
  int costlyClips_ = 0;
  int triangles_ = 0;
  std::vector<LastBlock> blocks_;  // at most two
};

// The rectangle between two corners in any order.
inline QRectF BoxOf(QPointF a, QPointF b) {
  return QRectF(a, b).normalized();
}

}  // namespace tarvis
