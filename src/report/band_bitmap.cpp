#include "report/band_bitmap.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "report/engine/document.h"

namespace tarvis {
namespace {

constexpr int BandWidth = 536;
constexpr int BandHeight = 29;
constexpr int RowBytes = BandWidth * 3;
constexpr int HeaderBytes = 54;
constexpr int PixelsPerMetre = 3780;

// From the top row down: a run from the left edge, then the rest of the row.
struct BandRow {
  int Run;
  Color RunColor;
  Color Rest = White;
};

constexpr std::array<BandRow, BandHeight> Rows{{
    {231, 0x676799},       {233, 0x6F6F9E},    {235, 0x7979A3},           {237, 0x8787AB},
    {239, 0x9696B5},       {240, 0xAAAAC2},    {242, 0xBBBBCD},           {244, 0xC8C8D7},
    {246, 0xDADAE3},       {247, 0xE5E5EB},    {249, 0xF0F0F3},           {251, 0xF6F6F8},
    {253, 0xFBFBFC},       {BandWidth, White}, {BandWidth, White},        {258, 0xF9F9FB},
    {260, 0xF4F4F7},       {262, 0xEBEBF0},    {263, 0xE1E1E9},           {265, 0xD2D2DD},
    {267, 0xC3C3D3},       {269, 0xB0B0C6},    {271, 0xA2A2BC},           {272, 0x9292B2},
    {274, 0x8080A7},       {276, 0x7575A1},    {278, 0x6B6B9B, 0x666699}, {BandWidth, 0x666699},
    {BandWidth, 0x666699},
}};

void AppendNumber(std::string& bytes, std::uint32_t number, int count) {
  for (int index = 0; index < count; ++index) bytes += static_cast<char>((number >> (8 * index)) & 0xFFU);
}

void AppendPixel(std::string& bytes, Color color) {
  AppendNumber(bytes, color, 3);
}

void AppendHeaders(std::string& bytes) {
  constexpr int pixelBytes = RowBytes * BandHeight;
  bytes += "BM";
  AppendNumber(bytes, HeaderBytes + pixelBytes, 4);
  AppendNumber(bytes, 0, 4);
  AppendNumber(bytes, HeaderBytes, 4);
  AppendNumber(bytes, 40, 4);  // size of the info header
  AppendNumber(bytes, BandWidth, 4);
  AppendNumber(bytes, BandHeight, 4);
  AppendNumber(bytes, 1, 2);   // planes
  AppendNumber(bytes, 24, 2);  // bits a pixel
  AppendNumber(bytes, 0, 4);   // no compression
  AppendNumber(bytes, pixelBytes, 4);
  AppendNumber(bytes, PixelsPerMetre, 4);
  AppendNumber(bytes, PixelsPerMetre, 4);
  AppendNumber(bytes, 0, 4);  // no palette
  AppendNumber(bytes, 0, 4);
}

std::string MakeBandBitmap() {
  std::string bytes;
  AppendHeaders(bytes);
  for (std::size_t row = Rows.size(); row-- > 0;) {  // from the bottom up
    for (int pixel = 0; pixel < BandWidth; ++pixel)
      AppendPixel(bytes, pixel < Rows[row].Run ? Rows[row].RunColor : Rows[row].Rest);
  }
  return bytes;
}

}  // namespace

const std::string& BandBitmap() {
  static const std::string bitmap = MakeBandBitmap();
  return bitmap;
}

}  // namespace tarvis
