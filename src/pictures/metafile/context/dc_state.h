// The state of a device context, and the objects that records select into it.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QTransform>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "pictures/metafile/list/draw_list.h"

namespace tarvis {

// A record that can't be played: it is skipped and counted.
class SkipRecord : public std::exception {
 public:
  const char* what() const noexcept override { return "record that can't be played"; }
};

// Bits of a pen's style, as both formats number them.
namespace penstyle {
inline constexpr std::uint32_t Dash = 1, Dot = 2, DashDot = 3, DashDotDot = 4, Null = 5, User = 7,
                               Alternate = 8;
inline constexpr std::uint32_t StyleMask = 0xF, CapMask = 0xF00, JoinMask = 0xF000, Geometric = 0x10000;
inline constexpr std::uint32_t SquareCap = 0x100, FlatCap = 0x200, BevelJoin = 0x1000, MiterJoin = 0x2000;
}  // namespace penstyle

struct MetaBrush {
  enum class Kind { Null, Solid, Hatch, Pattern };
  Kind Is = Kind::Solid;
  QColor Color = Qt::white;
  Qt::BrushStyle Hatch = Qt::SolidPattern;
  QImage Pattern;
  bool UsesTextColors = false;  // a pattern of two colours that are those of text and background
};

struct MetaPen {
  std::uint32_t Style = 0;
  double Width = 0;  // logical units
  MetaBrush Ink{MetaBrush::Kind::Solid, Qt::black, Qt::SolidPattern, {}, false};
  bool Extended = false;       // it has caps, joins and a cosmetic width
  std::vector<double> Dashes;  // of style User; logical units, or dots of a cosmetic pen
};

struct MetaFont {
  double Height = 0;       // logical units; below 0 of the em square, above 0 of the whole cell
  double Width = 0;        // average width; 0 is natural
  double Escapement = 0;   // degrees, counter-clockwise, of the baseline
  double Orientation = 0;  // the same of each character
  int Weight = 400;
  bool Italic = false;
  bool Underline = false;
  bool StrikeOut = false;
  std::uint8_t Charset = 0;
  std::u16string Face;
};

using MetaPalette = std::vector<QRgb>;
using MetaRegion = std::vector<QRectF>;

using PenPtr = std::shared_ptr<const MetaPen>;
using BrushPtr = std::shared_ptr<const MetaBrush>;
using FontPtr = std::shared_ptr<const MetaFont>;
using PalettePtr = std::shared_ptr<const MetaPalette>;
using RegionPtr = std::shared_ptr<const MetaRegion>;
using MetaObject = std::variant<std::monostate, PenPtr, BrushPtr, FontPtr, PalettePtr, RegionPtr>;

enum class MapMode : std::uint32_t {
  Text = 1,
  LowMetric = 2,
  HighMetric = 3,
  LowEnglish = 4,
  HighEnglish = 5,
  Twips = 6,
  Isotropic = 7,
  Anisotropic = 8
};

inline constexpr std::uint32_t Opaque = 2;           // of BackgroundMode
inline constexpr std::uint32_t WindingFillMode = 2;  // of PolyFillMode

// All that saving and restoring a device context keeps.
struct DcState {
  QTransform World;
  MapMode Mapping = MapMode::Text;
  QPointF WindowOrigin, ViewportOrigin;
  QPointF WindowExtent{1, 1}, ViewportExtent{1, 1};

  PenPtr Pen = std::make_shared<MetaPen>();
  BrushPtr Brush = std::make_shared<MetaBrush>();
  FontPtr Font = std::make_shared<MetaFont>();
  PalettePtr Palette = std::make_shared<MetaPalette>();

  QPointF Position;
  std::uint32_t PolyFillMode = 1;
  std::uint32_t Rop2 = 13;
  std::uint32_t BackgroundMode = Opaque;
  QColor TextColor = Qt::black;
  QColor BackgroundColor = Qt::white;
  std::uint32_t TextAlign = 0;
  double CharacterExtra = 0;
  double BreakExtra = 0;  // added to each blank
  double MiterLimit = 10;
  bool Clockwise = false;  // direction of arcs

  std::shared_ptr<const ListClip> Clip;      // null: none
  std::shared_ptr<const ListClip> MetaClip;  // what no selection of a clip opens again
};

inline Qt::FillRule FillRuleOf(const DcState& state) {
  return state.PolyFillMode == WindingFillMode ? Qt::WindingFill : Qt::OddEvenFill;
}

}  // namespace tarvis
