#include "pictures/metafile/context/drawing.h"

namespace tarvis {

Drawing::Drawing(DrawList& list, GlyphOutlines& glyphs)
    : glyphs_(glyphs),
      surface_(list, context_),
      clip_(context_, list.Budget()),
      shapes_(surface_, path_),
      areas_(surface_),
      images_(surface_, areas_),
      text_({surface_, path_, clip_, areas_}, glyphs) {}

void Drawing::Select(const MetaObject& object) {
  if (const auto* pen = std::get_if<PenPtr>(&object)) State().Pen = *pen;
  if (const auto* brush = std::get_if<BrushPtr>(&object)) State().Brush = *brush;
  if (const auto* font = std::get_if<FontPtr>(&object)) State().Font = *font;
  if (const auto* palette = std::get_if<PalettePtr>(&object)) State().Palette = *palette;
  if (std::holds_alternative<std::monostate>(object)) throw SkipRecord();
}

}  // namespace tarvis
