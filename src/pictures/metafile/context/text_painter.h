// Draws lines of text, with the font, colours and alignment of the context; into the path while it is open.
#pragma once

#include "pictures/metafile/context/area_painter.h"
#include "pictures/metafile/context/device_clip.h"
#include "pictures/metafile/context/path_bracket.h"
#include "pictures/metafile/context/text_line.h"

namespace tarvis {

class TextPainter {
 public:
  // What a text is drawn with besides its font.
  struct Parts {
    Surface& Target;
    PathBracket& Path;
    DeviceClip& Clip;
    AreaPainter& Areas;
  };
  TextPainter(const Parts& parts, GlyphOutlines& glyphs)
      : parts_(parts), placer_(parts.Target.Context(), glyphs) {}

  void Text(const TextRecord& text);
  // Of the line that it would draw, in logical units.
  double Width(const TextRecord& text);

 private:
  DcState& State() { return parts_.Target.State(); }
  void Align(TextLine& line);
  void DrawBars(const TextLine& line);
  ListText Empty(const TextLine& line);
  void DrawGlyphs(const TextRecord& text, const TextLine& line);
  void DrawShaped(const TextRecord& text, const TextLine& line);
  void Add(const QPainterPath& path, ListText shown);

  Parts parts_;
  TextPlacer placer_;
};

}  // namespace tarvis
