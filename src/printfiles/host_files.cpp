#include "printfiles/host_files.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <string>

#include "platform/files/file_in_use.h"
#include "run/print_run.h"
#include "text/file_name.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

constexpr std::int32_t LoadFailed = -1;

// The bytes of a file; if there are none, `reason` says why. A file that is too large isn't read at all.
std::optional<std::string> ReadBytes(std::string_view path, std::string& reason) {
  reason = "can't be read";
  if (!FileExists(path)) return std::nullopt;
  if (!WaitUntilReadable(NativePath(path))) {
    reason = "in use by another program";
    return std::nullopt;
  }
  std::ifstream file(NativePath(path), std::ios::binary | std::ios::ate);
  const std::streamoff size = file.tellg();
  if (!file || size < 0) return std::nullopt;
  if (size > LargestFile) {
    reason = "too large: " + std::to_string(size) + " bytes, where " + std::to_string(LargestFile) +
             " are read at most";
    return std::nullopt;
  }
  std::string bytes(static_cast<std::size_t>(size), '\0');
  file.seekg(0);
  if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
  if (file.peek() != std::ifstream::traits_type::eof()) {
    reason = "grows while it is read";
    return std::nullopt;
  }
  return bytes;
}

// Cuts `bytes` into lines. The last one needs no line end, and a trailing line end starts no further line.
template <typename AddLine>
void CutLines(std::string_view bytes, AddLine addLine) {
  for (std::size_t start = 0; start < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\r', start), bytes.size());
    addLine(start, end - start);
    start = end + (bytes.substr(std::min(end + 1, bytes.size())).starts_with('\n') ? 2 : 1);
  }
}

// Lines are cut before the code page is applied, so that half a character at a line's end spoils no other
// line.
void FillLines(const CodePage& page, std::string bytes, TextLines& lines) {
  if (IsAscii(bytes)) {
    lines.Reset(std::move(bytes));
    CutLines(lines.Text(), [&](std::size_t start, std::size_t length) { lines.AddPiece(start, length); });
    return;
  }
  lines.Reset({});
  CutLines(bytes, [&](std::size_t start, std::size_t length) {
    lines.AddLine(page.ToUtf8(std::string_view(bytes).substr(start, length)));
  });
}

}  // namespace

std::int32_t LoadBytes(PrintRun& run, std::string_view path, std::string bytes) {
  PrintSession& session = run.Session;
  session.LinesFile = FileNameOf(path);
  session.Diagnosis.clear();
  FillLines(run.CodePage, std::move(bytes), session.Lines);
  session.LineCount = session.Lines.HighestIndex();
  return session.LineCount;
}

std::int32_t LoadLines(PrintRun& run, std::string_view path) {
  std::string reason;
  if (std::optional<std::string> bytes = ReadBytes(path, reason))
    return LoadBytes(run, path, std::move(*bytes));
  PrintSession& session = run.Session;
  LoadBytes(run, path, {});
  session.Lines.Clear();
  session.LineCount = LoadFailed;
  session.Diagnosis = session.LinesFile + ": " + reason;
  return session.LineCount;
}

}  // namespace tarvis
