#include "pictures/metafile/context/text_painter.h"

namespace tarvis {
namespace {

double AlignedStart(std::uint32_t align, double width) {
  if ((align & AlignCenter) == AlignCenter) return -width / 2;
  return (align & AlignRight) != 0 ? -width : 0;
}

double AlignedBaseline(std::uint32_t align, double ascent, double descent) {
  if ((align & AlignBaseline) == AlignBaseline) return 0;
  return (align & AlignBottom) != 0 ? -descent : ascent;
}

// A place on a line, in device units.
QPointF Mapped(const TextLine& line, QPointF place) {
  return line.Start + line.Along * place.x() - line.Down * place.y();
}

}  // namespace

ListText TextPainter::Empty(const TextLine& line) {
  return ListText{.Characters = {},
                  .Flow = TextFlow::Plain,
                  .Font = line.Font,
                  .Origins = {},
                  .Ends = {},
                  .Em = QTransform(line.GlyphAlong.x(), line.GlyphAlong.y(), line.GlyphDown.x(),
                                   line.GlyphDown.y(), 0, 0),
                  .Up = -line.Down * line.Ascent,
                  .Down = line.Down * line.Descent,
                  .Color = State().TextColor};
}

void TextPainter::DrawGlyphs(const TextRecord& text, const TextLine& line) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  bool unknown = false;
  ListText shown = Empty(line);
  const SymbolSet symbols = FindSymbolSet(State().Font->Face, State().Font->Charset);
  for (std::size_t i = 0; i < line.Places.size(); ++i) {
    const char32_t code = SymbolCharacter(symbols, text.Text[i].Code);
    unknown = unknown || (code == 0 && text.Text[i].Code != 0);
    if (code < U' ') continue;
    const QPointF origin = Mapped(line, line.Places[i]);
    shown.Characters += code;
    shown.Origins.push_back(origin);
    shown.Ends.push_back(Mapped(line, line.Ends[i]));
    if (code != U' ')
      path.addPath(
          (shown.Em * QTransform::fromTranslate(origin.x(), origin.y())).map(line.Face->Glyph(code).Path));
  }
  Add(path, std::move(shown));
  if (unknown) throw SkipRecord();
}

void TextPainter::DrawShaped(const TextRecord& text, const TextLine& line) {
  ListText shown = Empty(line);
  shown.Flow = line.Flow;
  for (std::size_t i = 0; i < text.Text.size(); ++i) {
    if (text.Text[i].Code < U' ') continue;
    shown.Characters += text.Text[i].Code;
    shown.Origins.push_back(Mapped(line, line.Places[i]));
    shown.Ends.push_back(Mapped(line, line.Ends[i]));
  }
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const TextCluster& cluster : line.Shaped.Clusters) {
    const QPointF left = Mapped(line, LeftOf(cluster, line.Places, line.Ends));
    for (const TextGlyph& glyph : cluster.Glyphs) {
      const QRawFont& font = line.Shaped.Faces[glyph.Face];
      const QTransform place = QTransform::fromScale(1 / font.pixelSize(), 1 / font.pixelSize()) *
                               QTransform::fromTranslate(glyph.X - cluster.Left, glyph.Y) * shown.Em *
                               QTransform::fromTranslate(left.x(), left.y());
      path.addPath(place.map(font.pathForGlyph(glyph.Glyph)));
    }
  }
  Add(path, std::move(shown));
}

void TextPainter::Add(const QPainterPath& path, ListText shown) {
  if (parts_.Path.IsOpen()) {
    parts_.Path.Add(path);
  } else {
    parts_.Target.ClippedList().AddText(path, std::move(shown));
  }
}

// The background, and lines under and through the text.
void TextPainter::DrawBars(const TextLine& line) {
  const auto bar = [&](double from, double to, QColor color) {
    const QPointF width = line.Along * line.Width;
    const QPointF top = line.Start + line.Down * from;
    const QPointF bottom = line.Start + line.Down * to;
    QPainterPath path;
    path.addPolygon(QPolygonF({top, top + width, bottom + width, bottom, top}));
    parts_.Target.Fill(path, color);
  };
  if (parts_.Path.IsOpen() || line.Width == 0) return;
  const MetaFont& font = *State().Font;
  const double em = line.Ascent + line.Descent;
  if (State().BackgroundMode == Opaque) bar(-line.Ascent, line.Descent, State().BackgroundColor);
  if (font.Underline) bar(em * 0.09, em * 0.155, State().TextColor);
  if (font.StrikeOut) bar(-em * 0.26, -em * 0.2, State().TextColor);
}

double TextPainter::Width(const TextRecord& text) {
  parts_.Target.Budget().TakeCharacters(text.Text.size());
  return placer_.Place(text).Width;
}

// Moves the line as its alignment says, and the position to its end, if the alignment asks for that.
void TextPainter::Align(TextLine& line) {
  const std::uint32_t align = State().TextAlign;
  line.Start += line.Along * AlignedStart(align, line.Width) +
                line.Down * AlignedBaseline(align, line.Ascent, line.Descent);
  if ((align & AlignUpdatesPosition) == 0 || (align & AlignCenter) == AlignCenter) return;
  const double moved = (align & AlignRight) != 0 ? -line.Width : line.Width;
  const QTransform toDevice = parts_.Target.ToDevice();
  const QPointF device = toDevice.map(State().Position) + line.Along * moved - line.Down * line.Rise;
  if (toDevice.isInvertible()) State().Position = toDevice.inverted().map(device);
}

void TextPainter::Text(const TextRecord& text) {
  parts_.Target.Budget().TakeCharacters(text.Text.size());
  if (text.Text.size() > 0xFFFF) throw SkipRecord();
  const bool hasBox = (text.Options & TextNoBox) == 0 && !text.Box.isEmpty();
  if (hasBox && (text.Options & TextOpaque) != 0) parts_.Areas.Box(text.Box, State().BackgroundColor);
  if (text.Text.empty()) return;
  if ((text.Options & TextGlyphIndexes) != 0) return Text(placer_.WithCharacters(text));
  const auto clip = State().Clip;
  if (hasBox && (text.Options & TextClipped) != 0) parts_.Clip.Intersect(text.Box);
  TextLine line = placer_.Place(text);
  Align(line);
  DrawBars(line);
  try {
    if (line.Flow == TextFlow::Plain) {
      DrawGlyphs(text, line);
    } else {
      DrawShaped(text, line);
    }
  } catch (const SkipRecord&) {
    State().Clip = clip;
    throw;
  }
  State().Clip = clip;
}

}  // namespace tarvis
