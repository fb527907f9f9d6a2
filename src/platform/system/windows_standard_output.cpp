// Standard output as a file of the C runtime on Windows.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include "platform/system/standard_output.h"

namespace tarvis {
namespace {

constexpr std::size_t LargestPiece = 1 << 20;

}  // namespace

bool IsStandardOutputOpen() {
  return _fileno(stdout) >= 0;
}

std::string WriteStandardOutput(std::string_view bytes) {
  const int file = _fileno(stdout);
  _setmode(file, _O_BINARY);
  while (!bytes.empty()) {
    const auto size = static_cast<unsigned>(std::min(bytes.size(), LargestPiece));
    const int count = _write(file, bytes.data(), size);
    if (count < 0) return std::generic_category().message(errno);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

}  // namespace tarvis
