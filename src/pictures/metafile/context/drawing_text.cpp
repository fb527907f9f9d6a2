#include <cmath>
#include <numbers>

#include "pictures/metafile/context/drawing.h"

namespace tarvis {
namespace {

constexpr std::uint32_t AlignUpdatesPosition = 1, AlignRight = 2, AlignCenter = 6, AlignBottom = 8,
                        AlignBaseline = 24;
constexpr double DefaultDeviceHeight = 13;  // of fonts that tell no height
constexpr int BoldWeight = 600;

QTransform Linear(const QTransform& transform) {
  return QTransform(transform.m11(), transform.m12(), transform.m21(), transform.m22(), 0, 0);
}

double Size(QPointF vector) {
  return std::hypot(vector.x(), vector.y());
}

double AlignedStart(std::uint32_t align, double width) {
  if ((align & AlignCenter) == AlignCenter) return -width / 2;
  return (align & AlignRight) != 0 ? -width : 0;
}

double AlignedBaseline(std::uint32_t align, double ascent, double descent) {
  if ((align & AlignBaseline) == AlignBaseline) return 0;
  return (align & AlignBottom) != 0 ? -descent : ascent;
}

}  // namespace

// Where a line of text goes: `Along` and `Down` are one logical unit along the baseline and down from it,
// both in device units; a glyph's own axes differ where the mapping stretches, for glyphs keep their
// proportions.
struct Drawing::TextPlace {
  OutlineFont Font;
  OutlineFace* Face = nullptr;
  QPointF Start;  // of the baseline, device units
  QPointF Along, Down;
  QPointF GlyphAlong, GlyphDown;   // one em of a glyph
  double Ascent = 0, Descent = 0;  // in units of Down
  double NaturalUnit = 0;          // units of Along to one em of natural advance
  double Width = 0;                // in units of Along
  double Rise = 0;                 // of the end above the start, in units of Down
};

Drawing::TextPlace Drawing::PlaceText(const TextRecord& text) {
  const MetaFont& font = *State().Font;
  TextPlace place;
  place.Font = {QString::fromStdU16String(font.Face), font.Weight >= BoldWeight, font.Italic};
  place.Face = &glyphs_.Face(place.Font);
  const QTransform page = dc_.PageToDevice();
  const double signX = page.m11() < 0 ? -1 : 1;
  const double signY = page.m22() < 0 ? -1 : 1;
  // Text stands upright however the axes of the mapping point; only the world transform turns it.
  const QTransform upright = QTransform::fromScale(signX, signY) * Linear(State().World);
  const QTransform position = upright * Linear(page);
  const QTransform shape = upright * QTransform::fromScale(signX * std::abs(page.m22()), page.m22());
  // Angles count in logical units: where one axis of the mapping is turned round, so is their direction.
  const double angle = signX * signY * font.Escapement * std::numbers::pi / 180;
  const QPointF along(std::cos(angle), -std::sin(angle));
  const QPointF down(std::sin(angle), std::cos(angle));
  place.Along = position.map(along);
  place.Down = shape.map(down);
  const double cell = std::max(place.Face->Ascent + place.Face->Descent, 0.1);
  double em = font.Height < 0 ? -font.Height : font.Height / cell;
  if (em == 0) em = DefaultDeviceHeight / std::max(std::abs(page.m22()), 1e-9);
  const double stretch = Size(place.Along) / std::max(Size(shape.map(along)), 1e-9);
  double wide = 1;
  const bool told =
      font.Width != 0 && std::abs(font.Width) != std::abs(font.Height);  // some repeat the height
  if (told) wide = std::abs(font.Width) * stretch / std::max(place.Face->AverageWidth * em, 1e-9);
  place.GlyphAlong = shape.map(along) * em * wide;
  place.GlyphDown = shape.map(down) * em;
  place.Ascent = place.Face->Ascent * em;
  place.Descent = place.Face->Descent * em;
  place.NaturalUnit = em * wide / std::max(stretch, 1e-9);
  place.Start =
      ToDevice().map((State().TextAlign & AlignUpdatesPosition) != 0 ? State().Position : text.Reference);
  return place;
}

// The places of all glyphs from the start of the line, along and upwards; sets the width.
std::vector<QPointF> Drawing::GlyphPlaces(const TextRecord& text, TextPlace& place) {
  std::vector<QPointF> places;
  places.reserve(text.Text.size());
  const SymbolSet symbols = FindSymbolSet(State().Font->Face, State().Font->Charset);
  std::size_t unit = 0;
  double along = 0, rise = 0;
  for (const TextCharacter& character : text.Text) {
    places.emplace_back(along, rise);
    for (std::size_t i = 0; i < character.Units; ++i, ++unit) {
      if (unit < text.Advances.size()) along += text.Advances[unit];
      if (unit < text.Rises.size()) rise += text.Rises[unit];
    }
    if (!text.Advances.empty()) continue;
    along += place.Face->Glyph(SymbolCharacter(symbols, character.Code)).Advance * place.NaturalUnit +
             State().CharacterExtra;
    if (character.Code == U' ') along += State().BreakExtra;
  }
  place.Width = along;
  place.Rise = rise;
  return places;
}

void Drawing::DrawGlyphs(const TextRecord& text, const TextPlace& place) {
  TextPlace line = place;
  const std::vector<QPointF> places = GlyphPlaces(text, line);
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  bool unknown = false;
  ListText shown{.Characters = {},
                 .Font = line.Font,
                 .Origins = {},
                 .Em = QTransform(line.GlyphAlong.x(), line.GlyphAlong.y(), line.GlyphDown.x(),
                                  line.GlyphDown.y(), 0, 0),
                 .Up = -line.Down * line.Ascent,
                 .Down = line.Down * line.Descent,
                 .Color = State().TextColor};
  const SymbolSet symbols = FindSymbolSet(State().Font->Face, State().Font->Charset);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const char32_t code = SymbolCharacter(symbols, text.Text[i].Code);
    unknown = unknown || (code == 0 && text.Text[i].Code != 0);
    if (code < U' ') continue;
    const QPointF origin = line.Start + line.Along * places[i].x() - line.Down * places[i].y();
    shown.Characters += code;
    shown.Origins.push_back(origin);
    if (code != U' ')
      path.addPath(
          (shown.Em * QTransform::fromTranslate(origin.x(), origin.y())).map(line.Face->Glyph(code).Path));
  }
  if (inPath_) {
    path_.addPath(path);
  } else {
    shown.Origins.push_back(line.Start + line.Along * line.Width - line.Down * line.Rise);
    list_.SetClip(State().Clip);
    list_.AddText(path, std::move(shown));
  }
  if (unknown) throw SkipRecord();
}

// The background, and lines under and through the text.
void Drawing::DrawTextLines(const TextPlace& place) {
  const auto bar = [&](double from, double to, QColor color) {
    const QPointF width = place.Along * place.Width;
    const QPointF top = place.Start + place.Down * from;
    const QPointF bottom = place.Start + place.Down * to;
    QPainterPath path;
    path.addPolygon(QPolygonF({top, top + width, bottom + width, bottom, top}));
    const ListBrush brush{QBrush(color)};
    list_.SetClip(State().Clip);
    list_.AddShape(path, nullptr, &brush);
  };
  if (inPath_ || place.Width == 0) return;
  const MetaFont& font = *State().Font;
  const double em = place.Ascent + place.Descent;
  if (State().BackgroundMode == Opaque) bar(-place.Ascent, place.Descent, State().BackgroundColor);
  if (font.Underline) bar(em * 0.09, em * 0.155, State().TextColor);
  if (font.StrikeOut) bar(-em * 0.26, -em * 0.2, State().TextColor);
}

// Text by numbers of glyphs is turned into characters. Letters that aren't known, or that are as wide as no
// letter of the font that is there, must not show wrong ones.
TextRecord Drawing::WithCharacters(const TextRecord& text) {
  const std::string face = QString::fromStdU16String(State().Font->Face).toStdString();
  const BadMetafile refusal("its text is told by numbers of glyphs of the font \"" + face +
                            "\", which isn't installed");
  TextRecord told = text;
  told.Options &= ~TextGlyphIndexes;
  TextPlace place = PlaceText(told);
  for (TextCharacter& character : told.Text) {
    character.Code = place.Face->CharacterOf(static_cast<std::uint32_t>(character.Code));
    if (character.Code == 0) throw refusal;
  }
  if (told.Advances.empty()) return told;
  constexpr double mostSpread = 0.25;  // writers space letters out, but not to other letters' widths
  GlyphPlaces(told, place);
  TextRecord natural = told;
  natural.Advances.clear();
  TextPlace own = place;
  GlyphPlaces(natural, own);
  if (std::abs(place.Width - own.Width) > mostSpread * std::abs(own.Width)) throw refusal;
  return told;
}

double Drawing::TextWidth(const TextRecord& text) {
  Budget().TakeCharacters(text.Text.size());
  TextPlace place = PlaceText(text);
  GlyphPlaces(text, place);
  return place.Width;
}

void Drawing::Text(const TextRecord& text) {
  Budget().TakeCharacters(text.Text.size());
  if (text.Text.size() > 0xFFFF) throw SkipRecord();
  const bool hasBox = (text.Options & TextNoBox) == 0 && !text.Box.isEmpty();
  if (hasBox && (text.Options & TextOpaque) != 0) FillBox(text.Box, State().BackgroundColor);
  if (text.Text.empty()) return;
  if ((text.Options & TextGlyphIndexes) != 0) return Text(WithCharacters(text));
  const auto clip = State().Clip;
  if (hasBox && (text.Options & TextClipped) != 0) IntersectClip(text.Box);
  TextPlace place = PlaceText(text);
  GlyphPlaces(text, place);
  const std::uint32_t align = State().TextAlign;
  place.Start += place.Along * AlignedStart(align, place.Width) +
                 place.Down * AlignedBaseline(align, place.Ascent, place.Descent);
  if ((align & AlignUpdatesPosition) != 0 && (align & AlignCenter) != AlignCenter) {
    const double moved = (align & AlignRight) != 0 ? -place.Width : place.Width;
    const QPointF device = ToDevice().map(State().Position) + place.Along * moved - place.Down * place.Rise;
    if (ToDevice().isInvertible()) State().Position = ToDevice().inverted().map(device);
  }
  DrawTextLines(place);
  try {
    DrawGlyphs(text, place);
  } catch (const SkipRecord&) {
    State().Clip = clip;
    throw;
  }
  State().Clip = clip;
}

}  // namespace tarvis
