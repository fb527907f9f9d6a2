// Any bytes as the extended records in the one comment of an enhanced metafile.
#include <array>
#include <vector>

#include "fuzz_picture.h"
#include "pictures/metafile/list/metafile_picture.h"

namespace {

void Append(std::vector<std::uint8_t>& bytes, std::initializer_list<std::uint32_t> values) {
  for (const std::uint32_t value : values)
    for (const unsigned shift : {0u, 8u, 16u, 24u})
      bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

// The records after a header of their own, so that they are played whatever they are.
std::vector<std::uint8_t> AsMetafile(tarvis::Bytes records) {
  constexpr std::uint32_t headSize = 88, plusHeaderSize = 28, plusSignature = 0x2B464D45;
  const auto size = static_cast<std::uint32_t>(records.size() / 4 * 4);
  const std::uint32_t comment = 16 + plusHeaderSize + size;
  std::vector<std::uint8_t> bytes;
  Append(bytes, {1, headSize, 0, 0, 99, 99, 0, 0, 10000, 10000, 0x464D4520, 0x10000});
  Append(bytes, {headSize + comment + 20, 3, 1, 0, 0, 0, 100, 100, 100, 100});
  Append(bytes, {70, comment, 4 + plusHeaderSize + size, plusSignature});
  Append(bytes, {0x4001, plusHeaderSize, 16, 0xDBC01002, 1, 96, 96});
  bytes.insert(bytes.end(), records.begin(), records.begin() + size);
  Append(bytes, {14, 20, 0, 16, 20});
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::uint8_t> metafile = AsMetafile({data, size});
  tarvis::FuzzPicture(tarvis::LoadEmf, metafile);
  return 0;
}
