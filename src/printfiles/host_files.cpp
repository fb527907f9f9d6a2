#include "printfiles/host_files.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <string>

#include "run/print_run.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

constexpr std::int32_t LoadFailed = -1;

std::optional<std::string> ReadBytes(std::string_view path) {
  if (!FileExists(path)) return std::nullopt;
  std::ifstream file(NativePath(path), std::ios::binary | std::ios::ate);
  if (!file) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
  file.seekg(0);
  if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
  return bytes;
}

// Cuts `bytes` into lines. The last one needs no line end, and nothing behind the last line end is no line.
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
  session.LinesFile = path.substr(path.find_last_of("\\/") + 1);
  session.Diagnosis.clear();
  FillLines(run.Page, std::move(bytes), session.Lines);
  session.LineCount = session.Lines.HighestIndex();
  return session.LineCount;
}

std::int32_t LoadLines(PrintRun& run, std::string_view path) {
  if (std::optional<std::string> bytes = ReadBytes(path)) return LoadBytes(run, path, std::move(*bytes));
  PrintSession& session = run.Session;
  LoadBytes(run, path, {});
  session.Lines.Clear();
  session.LineCount = LoadFailed;
  session.Diagnosis = session.LinesFile + ": can't be read";
  return session.LineCount;
}

}  // namespace tarvis
