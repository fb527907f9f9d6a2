// Draws in a device context, in logical units, onto a draw list. All formats of metafiles play through it:
//
//   records ──► Drawing ─┬─ Context   state, saved states, mapping      device_context.h
//                        ├─ Clip                                        device_clip.h
//                        ├─ Path      collects shapes while it is open  path_bracket.h
//                        ├─ Shapes    lines and shapes                  shape_painter.h
//                        ├─ Areas     boxes, regions, gradients         area_painter.h
//                        ├─ Images    bitmaps, inner pictures           image_painter.h
//                        └─ Text                                        text_painter.h
//                              └─ Surface (pens, brushes, clip) ──► DrawList
#pragma once

#include "pictures/metafile/context/image_painter.h"
#include "pictures/metafile/context/shape_painter.h"
#include "pictures/metafile/context/text_painter.h"

namespace tarvis {

class Drawing {
 public:
  Drawing(DrawList& list, GlyphOutlines& glyphs);
  Drawing(const Drawing&) = delete;  // its parts refer to each other
  Drawing& operator=(const Drawing&) = delete;

  DeviceContext& Context() { return context_; }
  DcState& State() { return context_.State(); }
  const DcState& State() const { return context_.State(); }
  PictureBudget& Budget() { return surface_.Budget(); }
  GlyphOutlines& Glyphs() { return glyphs_; }
  DeviceClip& Clip() { return clip_; }
  PathBracket& Path() { return path_; }
  ShapePainter& Shapes() { return shapes_; }
  AreaPainter& Areas() { return areas_; }
  ImagePainter& Images() { return images_; }
  TextPainter& Text() { return text_; }

  // SkipRecord if there is no object.
  void Select(const MetaObject& object);
  // Ends the path, which becomes the clip.
  void ClipToPath(ClipMode mode) { clip_.Select(path_.Take(FillRuleOf(State())), mode); }

 private:
  GlyphOutlines& glyphs_;
  DeviceContext context_;
  Surface surface_;
  PathBracket path_;
  DeviceClip clip_;
  ShapePainter shapes_;
  AreaPainter areas_;
  ImagePainter images_;
  TextPainter text_;
};

}  // namespace tarvis
