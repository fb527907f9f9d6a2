// The picture in the title of each report: its size and its pixels.
#include "report/band_bitmap.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace tarvis {
namespace {

constexpr std::size_t Width = 536;
constexpr std::size_t Height = 29;
constexpr std::size_t HeaderSize = 54;
constexpr std::size_t RowSize = 1608;

struct Run {
  std::size_t Width;
  std::uint32_t Color;
  std::uint32_t Rest = 0xFFFFFF;
};

// From the top row down: a coloured run from the left edge, then the rest of the row.
const std::vector<Run> Runs{
    {231, 0x676799}, {233, 0x6F6F9E},           {235, 0x7979A3}, {237, 0x8787AB}, {239, 0x9696B5},
    {240, 0xAAAAC2}, {242, 0xBBBBCD},           {244, 0xC8C8D7}, {246, 0xDADAE3}, {247, 0xE5E5EB},
    {249, 0xF0F0F3}, {251, 0xF6F6F8},           {253, 0xFBFBFC}, {536, 0xFFFFFF}, {536, 0xFFFFFF},
    {258, 0xF9F9FB}, {260, 0xF4F4F7},           {262, 0xEBEBF0}, {263, 0xE1E1E9}, {265, 0xD2D2DD},
    {267, 0xC3C3D3}, {269, 0xB0B0C6},           {271, 0xA2A2BC}, {272, 0x9292B2}, {274, 0x8080A7},
    {276, 0x7575A1}, {278, 0x6B6B9B, 0x666699}, {536, 0x666699}, {536, 0x666699},
};

std::uint32_t NumberAt(std::size_t offset, std::size_t bytes) {
  std::uint32_t number = 0;
  for (std::size_t index = bytes; index-- > 0;) {
    number = (number << 8U) | static_cast<unsigned char>(BandBitmap()[offset + index]);
  }
  return number;
}

TEST(BandBitmap, IsAWindowsBmpWithTheseHeaders) {
  struct HeaderField {
    std::size_t Offset;
    std::size_t Bytes;
    std::uint32_t Value;
  };
  ASSERT_EQ(BandBitmap().size(), 46686U);
  EXPECT_EQ(BandBitmap().substr(0, 2), "BM");
  for (const HeaderField& field :
       {HeaderField{2, 4, 46686}, HeaderField{6, 4, 0}, HeaderField{10, 4, 54}, HeaderField{14, 4, 40},
        HeaderField{18, 4, 536}, HeaderField{22, 4, 29}, HeaderField{26, 2, 1}, HeaderField{28, 2, 24},
        HeaderField{30, 4, 0}, HeaderField{34, 4, 46632}, HeaderField{38, 4, 3780}, HeaderField{42, 4, 3780},
        HeaderField{46, 4, 0}, HeaderField{50, 4, 0}}) {
    EXPECT_EQ(NumberAt(field.Offset, field.Bytes), field.Value) << "at byte " << field.Offset;
  }
}

TEST(BandBitmap, FadesRowByRow) {
  ASSERT_EQ(Runs.size(), Height);
  ASSERT_EQ(BandBitmap().size(), HeaderSize + Height * RowSize);
  for (std::size_t row = 0; row < Height; ++row) {
    const std::size_t start = HeaderSize + (Height - 1 - row) * RowSize;  // the file holds the rows bottom up
    for (std::size_t pixel = 0; pixel < Width; ++pixel) {
      const std::uint32_t color = pixel < Runs[row].Width ? Runs[row].Color : Runs[row].Rest;
      ASSERT_EQ(NumberAt(start + 3 * pixel, 3), color) << "row " << row << ", pixel " << pixel;
    }
  }
}

}  // namespace
}  // namespace tarvis
