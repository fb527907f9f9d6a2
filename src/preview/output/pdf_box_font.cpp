#include "preview/output/pdf_box_font.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

namespace tarvis {
namespace {

void AppendShort(std::string& bytes, int value) {
  bytes += static_cast<char>((value >> 8) & 0xFF);
  bytes += static_cast<char>(value & 0xFF);
}

void AppendLong(std::string& bytes, std::uint32_t value) {
  AppendShort(bytes, static_cast<int>(value >> 16U));
  AppendShort(bytes, static_cast<int>(value & 0xFFFFU));
}

std::string Shorts(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) AppendShort(bytes, value);
  return bytes;
}

// Tables begin at multiples of four bytes.
void Pad(std::string& bytes) {
  while (bytes.size() % 4 != 0) bytes += '\0';
}

struct OutlinePoint {
  int X = 0;
  int Y = 0;  // upwards
  bool IsOnCurve = true;
  bool operator==(const OutlinePoint&) const = default;
};
using Contour = std::vector<OutlinePoint>;

OutlinePoint PointAt(const QPointF& place, bool isOnCurve = true) {
  return {static_cast<int>(std::lround(place.x())), static_cast<int>(std::lround(-place.y())), isOnCurve};
}

// Outlines of TrueType fonts have curves with one control point, which the toolkit gives with two.
std::vector<Contour> ContoursOf(const QPainterPath& path) {
  std::vector<Contour> contours;
  for (int index = 0; index < path.elementCount(); ++index) {
    const QPointF place = path.elementAt(index);
    switch (path.elementAt(index).type) {
      case QPainterPath::MoveToElement:
        contours.push_back({PointAt(place)});
        break;
      case QPainterPath::LineToElement:
        contours.back().push_back(PointAt(place));
        break;
      case QPainterPath::CurveToElement:
        contours.back().push_back(PointAt((3 * place - QPointF(path.elementAt(index - 1))) / 2, false));
        contours.back().push_back(PointAt(path.elementAt(index + 2)));
        break;
      case QPainterPath::CurveToDataElement:
        break;
    }
  }
  for (Contour& contour : contours) {
    if (contour.size() > 1 && contour.back() == contour.front()) contour.pop_back();
  }
  return contours;
}

struct Outline {
  std::vector<Contour> Contours;
  int Points = 0;
  int Left = 0;
  int Bottom = 0;
  int Right = 0;
  int Top = 0;

  explicit Outline(const QPainterPath& path) : Contours(ContoursOf(path)) {
    const QRectF box = path.controlPointRect();
    Left = static_cast<int>(std::floor(box.left()));
    Right = static_cast<int>(std::ceil(box.right()));
    Top = static_cast<int>(std::ceil(-box.top()));
    Bottom = static_cast<int>(std::floor(-box.bottom()));
    for (const Contour& contour : Contours) Points += static_cast<int>(contour.size());
  }
};

// One glyph of the table of outlines; no bytes for one that shows nothing.
std::string GlyphData(const Outline& outline) {
  if (outline.Contours.empty()) return {};
  std::string data = Shorts(
      {static_cast<int>(outline.Contours.size()), outline.Left, outline.Bottom, outline.Right, outline.Top});
  int points = 0;
  for (const Contour& contour : outline.Contours) {
    points += static_cast<int>(contour.size());
    AppendShort(data, points - 1);
  }
  AppendShort(data, 0);  // no instructions
  std::string flags;
  std::string x;
  std::string y;
  OutlinePoint last;
  for (const Contour& contour : outline.Contours) {
    for (const OutlinePoint& point : contour) {
      flags += point.IsOnCurve ? '\1' : '\0';
      AppendShort(x, point.X - last.X);
      AppendShort(y, point.Y - last.Y);
      last = point;
    }
  }
  data += flags + x + y;
  Pad(data);
  return data;
}

int Units(float em) {
  return static_cast<int>(std::lround(em * BoxFontUnits));
}

constexpr std::uint32_t Version1 = 0x00010000;

std::string Head(const Outline& outline) {
  std::string table;
  AppendLong(table, Version1);
  AppendLong(table, Version1);    // of this font
  AppendLong(table, 0);           // a sum over the whole font, which is filled in last
  AppendLong(table, 0x5F0F3CF5);  // by which this table is recognized
  table += Shorts({0, BoxFontUnits});
  table.append(16, '\0');  // no dates
  table += Shorts({outline.Left, outline.Bottom, outline.Right, outline.Top});
  table += Shorts({0, 1, 2, 1, 0});  // places of outlines are written with four bytes
  return table;
}

std::string HorizontalHead(const Outline& outline, int widest, int glyphs) {
  std::string table;
  AppendLong(table, Version1);
  table += Shorts({outline.Top, outline.Bottom, 0, widest, 0, 0, outline.Right, 1, 0, 0});
  table += Shorts({0, 0, 0, 0, 0, glyphs});
  return table;
}

std::string Limits(const Outline& outline, int glyphs) {
  std::string table;
  AppendLong(table, Version1);
  table += Shorts({glyphs, outline.Points, static_cast<int>(outline.Contours.size())});
  table += Shorts({0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0});
  return table;
}

std::uint32_t SumOf(const std::string& bytes) {
  std::uint32_t sum = 0;
  for (std::size_t index = 0; index < bytes.size(); ++index)
    sum += static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[index])) << (8 * (3 - index % 4));
  return sum;
}

struct Table {
  const char* Tag;
  std::string Data;
};

// The tables in the order of their tags, with a list of them before.
std::string FontOf(std::span<const Table> tables) {
  std::string font;
  AppendLong(font, Version1);
  const int count = static_cast<int>(tables.size());
  const int power = static_cast<int>(std::bit_floor(static_cast<unsigned>(count)));
  font += Shorts({count, 16 * power, std::countr_zero(static_cast<unsigned>(power)), 16 * (count - power)});
  std::size_t place = font.size() + 16 * tables.size();
  std::string data;
  for (const Table& table : tables) {
    font += table.Tag;
    AppendLong(font, SumOf(table.Data));
    AppendLong(font, static_cast<std::uint32_t>(place + data.size()));
    AppendLong(font, static_cast<std::uint32_t>(table.Data.size()));
    data += table.Data;
    Pad(data);
  }
  return font + data;
}

// What is missing of the sum that the format asks for.
void CompleteSum(std::string& font) {
  constexpr std::size_t PlaceInHead = 8;
  std::string sum;
  AppendLong(sum, 0xB1B0AFBAU - SumOf(font));
  const std::size_t entry = font.find("head");
  std::size_t head = 0;
  for (std::size_t index = entry + 8; index < entry + 12; ++index)
    head = head << 8U | static_cast<unsigned char>(font[index]);
  font.replace(head + PlaceInHead, sum.size(), sum);
}

}  // namespace

std::string BoxFont(const QPainterPath& box, std::span<const float> advancesEm) {
  const Outline outline(box);
  const std::string glyph = GlyphData(outline);
  std::string outlines;
  std::string places;
  std::string advances = Shorts({0, 0});
  int widest = 0;
  AppendLong(places, 0);
  AppendLong(places, 0);
  for (const float advance : advancesEm) {
    outlines += glyph;
    AppendLong(places, static_cast<std::uint32_t>(outlines.size()));
    advances += Shorts({Units(advance), outline.Left});
    widest = std::max(widest, Units(advance));
  }
  const int count = static_cast<int>(advancesEm.size()) + 1;
  const std::array<Table, 6> tables{{{"glyf", outlines},
                                     {"head", Head(outline)},
                                     {"hhea", HorizontalHead(outline, widest, count)},
                                     {"hmtx", advances},
                                     {"loca", places},
                                     {"maxp", Limits(outline, count)}}};
  std::string font = FontOf(tables);
  CompleteSum(font);
  return font;
}

}  // namespace tarvis
