#include "pictures/metafile/context/stock_objects.h"

namespace tarvis {
namespace {

BrushPtr Brush(QColor color) {
  return std::make_shared<MetaBrush>(MetaBrush{MetaBrush::Kind::Solid, color, Qt::SolidPattern, {}, false});
}

PenPtr Pen(QColor color, std::uint32_t style = 0) {
  auto pen = std::make_shared<MetaPen>();
  pen->Style = style;
  pen->Ink.Color = color;
  return pen;
}

FontPtr Font(const char16_t* face) {
  auto font = std::make_shared<MetaFont>();
  font->Face = face;
  return font;
}

}  // namespace

MetaObject StockObject(std::uint32_t number) {
  switch (number) {
    case 0:
    case 18:
      return Brush(Qt::white);
    case 1:
      return Brush(QColor(192, 192, 192));
    case 2:
      return Brush(QColor(128, 128, 128));
    case 3:
      return Brush(QColor(64, 64, 64));
    case 4:
      return Brush(Qt::black);
    case 5:
      return BrushPtr(
          std::make_shared<MetaBrush>(MetaBrush{MetaBrush::Kind::Null, Qt::white, Qt::NoBrush, {}, false}));
    case 6:
      return Pen(Qt::white);
    case 7:
    case 19:
      return Pen(Qt::black);
    case 8:
      return Pen(Qt::black, penstyle::Null);
    case 10:
    case 11:
    case 16:
      return Font(u"Courier New");
    case 12:
    case 13:
    case 14:
    case 17:
      return Font(u"Arial");
    case 15:
      return PalettePtr(std::make_shared<MetaPalette>());
    default:
      throw SkipRecord();
  }
}

}  // namespace tarvis
