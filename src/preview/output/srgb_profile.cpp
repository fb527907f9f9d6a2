#include "preview/output/srgb_profile.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvis {
namespace {

constexpr std::size_t HeaderSize = 128;

void AppendBigEndian(std::string& bytes, std::uint32_t value, int count) {
  for (int shift = 8 * (count - 1); shift >= 0; shift -= 8)
    bytes += static_cast<char>(value >> shift & 0xFFU);
}

void Append32(std::string& bytes, std::uint32_t value) {
  AppendBigEndian(bytes, value, 4);
}

// A type of the format: its name and four bytes that are kept for later.
std::string Begin(std::string_view type) {
  return std::string(type) + std::string(4, '\0');
}

std::uint32_t Fixed(double value) {
  return static_cast<std::uint32_t>(std::lround(value * 65536));
}

using Xyz = std::array<double, 3>;

void AppendXyz(std::string& bytes, const Xyz& colour) {
  for (const double part : colour) Append32(bytes, Fixed(part));
}

constexpr Xyz WhiteD50{0.9642, 1, 0.8249};
// The primaries, adapted from their white (D65) to D50 by the linear Bradford transform, as ICC.1 asks for.
constexpr Xyz Red{0.43607, 0.22249, 0.01392};
constexpr Xyz Green{0.38515, 0.71687, 0.09708};
constexpr Xyz Blue{0.14307, 0.06061, 0.71410};

std::string XyzTag(const Xyz& colour) {
  std::string bytes = Begin("XYZ ");
  AppendXyz(bytes, colour);
  return bytes;
}

// How bright a part of a colour is, from 0 to 1.
double Brightness(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

// A point for each value of a byte, so that no colour of a page lies between two of them.
std::string CurveTag() {
  constexpr std::uint32_t Points = 256;
  std::string bytes = Begin("curv");
  Append32(bytes, Points);
  for (std::uint32_t point = 0; point < Points; ++point)
    AppendBigEndian(bytes, static_cast<std::uint32_t>(std::lround(Brightness(point / 255.0) * 65535)), 2);
  return bytes;
}

std::string TextTag(std::string_view text) {
  return Begin("text") + std::string(text) + '\0';
}

// The same text could follow in two further encodings; both are empty.
std::string DescriptionTag(std::string_view text) {
  std::string bytes = Begin("desc");
  Append32(bytes, static_cast<std::uint32_t>(text.size() + 1));
  bytes += std::string(text) + '\0';
  constexpr std::size_t EmptyEncodings = 4 + 4 + 2 + 1 + 67;
  return bytes + std::string(EmptyEncodings, '\0');
}

std::string Header(std::size_t size) {
  std::string bytes;
  Append32(bytes, static_cast<std::uint32_t>(size));
  Append32(bytes, 0);           // no preferred colour module
  Append32(bytes, 0x02100000);  // version 2.1
  bytes += "mntrRGB XYZ ";
  for (const std::uint32_t part : {2026U, 1U, 1U, 0U, 0U, 0U}) AppendBigEndian(bytes, part, 2);
  bytes += "acsp";
  bytes.resize(68, '\0');  // no platform, no maker, and colours as they are seen
  AppendXyz(bytes, WhiteD50);
  bytes.resize(HeaderSize, '\0');
  return bytes;
}

struct Tag {
  std::string_view Name;
  std::size_t Part;  // of the data; tags may share one
};

}  // namespace

std::string SrgbProfile() {
  const std::vector<std::string> parts{DescriptionTag("sRGB IEC61966-2.1"),
                                       TextTag("No copyright. Use freely."),
                                       XyzTag(WhiteD50),
                                       XyzTag(Red),
                                       XyzTag(Green),
                                       XyzTag(Blue),
                                       CurveTag()};
  constexpr Tag Tags[] = {{"desc", 0}, {"cprt", 1}, {"wtpt", 2}, {"rXYZ", 3}, {"gXYZ", 4},
                          {"bXYZ", 5}, {"rTRC", 6}, {"gTRC", 6}, {"bTRC", 6}};
  std::string data;
  std::vector<std::uint32_t> places;
  constexpr std::size_t TableSize = 4 + 12 * std::size(Tags);
  for (const std::string& part : parts) {
    places.push_back(static_cast<std::uint32_t>(HeaderSize + TableSize + data.size()));
    data += part;
    data.resize((data.size() + 3) / 4 * 4, '\0');
  }
  std::string bytes = Header(HeaderSize + TableSize + data.size());
  Append32(bytes, static_cast<std::uint32_t>(std::size(Tags)));
  for (const Tag& tag : Tags) {
    bytes += tag.Name;
    Append32(bytes, places[tag.Part]);
    Append32(bytes, static_cast<std::uint32_t>(parts[tag.Part].size()));
  }
  return bytes + data;
}

}  // namespace tarvis
