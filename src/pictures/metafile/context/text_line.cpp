#include "pictures/metafile/context/text_line.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace tarvis {
namespace {

constexpr double DefaultDeviceHeight = 13;  // of fonts without a height
constexpr int BoldWeight = 600;

QTransform Linear(const QTransform& transform) {
  return QTransform(transform.m11(), transform.m12(), transform.m21(), transform.m22(), 0, 0);
}

double Size(QPointF vector) {
  return std::hypot(vector.x(), vector.y());
}

std::string Quoted(const QString& name) {
  return '"' + name.toStdString() + '"';
}

std::string GlyphNumbersOf(const TextLine& line) {
  return "its text consists of glyph numbers of the font " + Quoted(line.Font.Family);
}

// Says whether the font or only this number of a glyph is unknown.
[[noreturn]] void RefuseGlyphNumber(const TextLine& line, std::uint32_t number) {
  if (!line.Face->KnowsGlyphNumbers()) throw BadMetafile(GlyphNumbersOf(line) + ", which isn't installed");
  throw BadMetafile(GlyphNumbersOf(line) + "; what number " + std::to_string(number) +
                    " shows isn't known from the installed font " + Quoted(line.Face->InstalledFamily()));
}

std::string Utf8Of(const TextRecord& text) {
  std::u32string codes;
  for (const TextCharacter& character : text.Text) codes += character.Code;
  return QString::fromUcs4(codes.data(), static_cast<qsizetype>(codes.size())).toStdString();
}

// What a record says of the widths and rises of its characters.
class RoomsOfRecord {
 public:
  explicit RoomsOfRecord(const TextRecord& text) : text_(text) {
    for (const TextCharacter& character : text.Text)
      firstUnits_.push_back(firstUnits_.back() + character.Units);
  }
  double Width(std::size_t first, std::size_t end) const { return Sum(text_.Advances, first, end); }
  double Rise(std::size_t first, std::size_t end) const { return Sum(text_.Rises, first, end); }

 private:
  double Sum(const std::vector<double>& values, std::size_t first, std::size_t end) const {
    double sum = 0;
    for (std::size_t unit = firstUnits_[first]; unit < std::min(firstUnits_[end], values.size()); ++unit)
      sum += values[unit];
    return sum;
  }

  const TextRecord& text_;
  std::vector<std::size_t> firstUnits_{0};
};

}  // namespace

TextLine TextPlacer::Baseline(const TextRecord& text) {
  const DcState& state = context_.State();
  const MetaFont& font = *state.Font;
  TextLine line;
  line.Font = {QString::fromStdU16String(font.Face), font.Weight >= BoldWeight, font.Italic,
               CodePageOf(font.Charset)};
  line.Face = &glyphs_.Face(line.Font);
  const QTransform page = context_.PageToDevice();
  const double signX = page.m11() < 0 ? -1 : 1;
  const double signY = page.m22() < 0 ? -1 : 1;
  // Text is upright however the axes of the mapping point; only the world transform turns it.
  const QTransform upright = QTransform::fromScale(signX, signY) * Linear(state.World);
  const QTransform position = upright * Linear(page);
  const QTransform shape = upright * QTransform::fromScale(signX * std::abs(page.m22()), page.m22());
  // Angles count in logical units: where one axis of the mapping is turned round, so is their direction.
  const double angle = signX * signY * font.Escapement * std::numbers::pi / 180;
  const QPointF along(std::cos(angle), -std::sin(angle));
  const QPointF down(std::sin(angle), std::cos(angle));
  line.Along = position.map(along);
  line.Down = shape.map(down);
  const double cell = std::max(line.Face->Ascent + line.Face->Descent, 0.1);
  double em = font.Height < 0 ? -font.Height : font.Height / cell;
  if (em == 0) em = DefaultDeviceHeight / std::max(std::abs(page.m22()), 1e-9);
  const double stretch = Size(line.Along) / std::max(Size(shape.map(along)), 1e-9);
  double wide = 1;
  const bool hasWidth =
      font.Width != 0 && std::abs(font.Width) != std::abs(font.Height);  // some writers repeat the height
  if (hasWidth) wide = std::abs(font.Width) * stretch / std::max(line.Face->AverageWidth * em, 1e-9);
  line.GlyphAlong = shape.map(along) * em * wide;
  line.GlyphDown = shape.map(down) * em;
  line.Ascent = line.Face->Ascent * em;
  line.Descent = line.Face->Descent * em;
  line.NaturalUnit = em * wide / std::max(stretch, 1e-9);
  line.Start = context_.ToDevice().map((state.TextAlign & AlignUpdatesPosition) != 0 ? state.Position
                                                                                     : text.Reference);
  return line;
}

// The characters of shaped lines come from the file, and each is looked up in all of its line.
constexpr std::size_t LongestShaped = 2000;

// A record has the direction that it names, whatever its first letter is.
TextFlow TextPlacer::FlowOfRecord(const TextRecord& text) const {
  const DcState& state = context_.State();
  const bool isAsItIs = (text.Options & TextAsItIs) != 0 || text.Text.size() > LongestShaped ||
                        FindSymbolSet(state.Font->Face, state.Font->Charset) != SymbolSet::None;
  if (isAsItIs || FlowOf(Utf8Of(text)) == TextFlow::Plain) return TextFlow::Plain;
  const bool isToTheLeft = (text.Options & TextToTheLeft) != 0 || (state.TextAlign & AlignTextToTheLeft) != 0;
  return isToTheLeft ? TextFlow::RightToLeft : TextFlow::LeftToRight;
}

// Sets the places, the width and the rise of the line.
void TextPlacer::PlaceGlyphs(const TextRecord& text, TextLine& line) {
  const DcState& state = context_.State();
  line.Places.clear();
  line.Ends.clear();
  line.Flow = FlowOfRecord(text);
  if (line.Flow != TextFlow::Plain) return PlaceShaped(text, line);
  line.Places.reserve(text.Text.size());
  const SymbolSet symbols = FindSymbolSet(state.Font->Face, state.Font->Charset);
  std::size_t unit = 0;
  double along = 0, rise = 0;
  for (const TextCharacter& character : text.Text) {
    if (!line.Places.empty()) line.Ends.emplace_back(along, rise);
    line.Places.emplace_back(along, rise);
    for (std::size_t i = 0; i < character.Units; ++i, ++unit) {
      if (unit < text.Advances.size()) along += text.Advances[unit];
      if (unit < text.Rises.size()) rise += text.Rises[unit];
    }
    if (!text.Advances.empty()) continue;
    along += line.Face->Glyph(SymbolCharacter(symbols, character.Code)).Advance * line.NaturalUnit +
             state.CharacterExtra;
    if (character.Code == U' ') along += state.BreakExtra;
  }
  if (!line.Places.empty()) line.Ends.emplace_back(along, rise);
  line.Width = along;
  line.Rise = rise;
}

// Widths that the record gives belong to characters in the order of the text; those of a cluster add up, and
// clusters follow each other from left to right.
void TextPlacer::PlaceShaped(const TextRecord& text, TextLine& line) {
  const DcState& state = context_.State();
  line.Shaped = ShapeText(QString::fromStdString(Utf8Of(text)), line.Flow, line.Face->Font());
  const RoomsOfRecord rooms(text);
  std::vector<CharacterPlace> places(text.Text.size());
  std::vector<double> rises(text.Text.size());
  double along = 0, rise = 0;
  for (const TextCluster& cluster : line.Shaped.Clusters) {
    double width = (cluster.Right - cluster.Left) * line.NaturalUnit +
                   state.CharacterExtra * static_cast<double>(cluster.Sizes.size()) +
                   (cluster.Text == U" " ? state.BreakExtra : 0);
    const std::size_t end = cluster.FirstCharacter + cluster.Text.size();
    if (!text.Advances.empty()) width = rooms.Width(cluster.FirstCharacter, end);
    PlaceCharacters(cluster, static_cast<float>(along), static_cast<float>(along + width), places);
    std::fill(rises.begin() + static_cast<std::ptrdiff_t>(cluster.FirstCharacter),
              rises.begin() + static_cast<std::ptrdiff_t>(end), rise);
    along += width;
    rise += rooms.Rise(cluster.FirstCharacter, end);
  }
  for (std::size_t index = 0; index < places.size(); ++index) {
    const CharacterPlace& place = places[index];
    line.Places.emplace_back(place.RunsToTheLeft ? place.Right : place.Left, rises[index]);
    line.Ends.emplace_back(place.RunsToTheLeft ? place.Left : place.Right, rises[index]);
  }
  line.Width = along;
  line.Rise = rise;
}

TextLine TextPlacer::Place(const TextRecord& text) {
  TextLine line = Baseline(text);
  PlaceGlyphs(text, line);
  return line;
}

TextRecord TextPlacer::WithCharacters(const TextRecord& text) {
  TextRecord characters = text;
  characters.Options &= ~TextGlyphIndexes;
  characters.Options |= TextAsItIs;  // glyphs come from left to right, in their final forms
  TextLine line = Baseline(characters);
  for (TextCharacter& character : characters.Text) {
    const auto number = static_cast<std::uint32_t>(character.Code);
    character.Code = line.Face->CharacterOf(number);
    if (character.Code == 0) RefuseGlyphNumber(line, number);
  }
  if (characters.Advances.empty()) return characters;
  constexpr double mostSpread = 0.25;  // writers space letters out, but not to other letters' widths
  PlaceGlyphs(characters, line);
  TextRecord natural = characters;
  natural.Advances.clear();
  TextLine own = line;
  PlaceGlyphs(natural, own);
  if (std::abs(line.Width - own.Width) > mostSpread * std::abs(own.Width))
    throw BadMetafile(GlyphNumbersOf(line) + ", but is not as wide as the letters of the installed font " +
                      Quoted(line.Face->InstalledFamily()));
  return characters;
}

}  // namespace tarvis
