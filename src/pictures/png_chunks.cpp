#include "pictures/png_chunks.h"

#include <algorithm>
#include <string_view>

namespace tarvis {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view Signature = "\x89PNG\r\n\x1A\n"sv;
constexpr std::string_view Shown[] = {"IHDR", "PLTE", "IDAT", "IEND", "tRNS", "gAMA",
                                      "cHRM", "sRGB", "iCCP", "sBIT", "pHYs", "eXIf"};

// Numbers of these files have their highest byte first.
std::size_t HighFirst(std::string_view number) {
  std::size_t value = 0;
  for (const char byte : number) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

}  // namespace

QByteArray ShownChunks(Bytes file) {
  constexpr std::size_t headSize = 8, checksumSize = 4;
  const std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
  if (!text.starts_with(Signature))
    return QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
  QByteArray shown(Signature.data(), static_cast<qsizetype>(Signature.size()));
  for (std::size_t at = Signature.size(); at + headSize <= text.size();) {
    const std::size_t size = headSize + std::min(HighFirst(text.substr(at, 4)), text.size()) + checksumSize;
    const std::string_view chunk = text.substr(at, size);
    if (std::ranges::find(Shown, chunk.substr(4, 4)) != std::end(Shown))
      shown.append(chunk.data(), static_cast<qsizetype>(chunk.size()));
    at += chunk.size();
  }
  return shown;
}

}  // namespace tarvis
