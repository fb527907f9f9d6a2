#include "fuzz_reader.h"

#include <algorithm>
#include <array>

#include "fuzz_run.h"
#include "printfiles/host_files.h"

namespace tarvis {
namespace {

constexpr std::array Pages = {1252, 932, 936, 949, 950};
constexpr std::int16_t Overlap = 12;  // one more than a simulation has room for

bool IsOneLine(const std::string& text) {
  return !text.empty() &&
         std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

}  // namespace

bool ReadBytes(PrintRun& run, bool (*reader)(PrintRun& run), const char* name, std::string_view bytes) {
  LoadBytes(run, name, std::string(bytes));
  try {
    const bool accepted = reader(run);
    Require(accepted ? run.Session.Diagnosis.empty() : IsOneLine(run.Session.Diagnosis));
    return accepted;
  } catch (const RunTimeFailure& failure) {
    Require(IsOneLine(failure.what()));
    return false;
  }
}

void FuzzReader(bool (*reader)(PrintRun& run), const char* name, const std::uint8_t* data, std::size_t size) {
  static UnreachableDesktop desktop;
  PrintRun run(desktop);
  run.CodePage = CodePage(Pages[size % Pages.size()]);
  run.Session.OverlapNum = Overlap;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ReadBytes(run, reader, name, bytes);
  ReadBytes(run, reader, name, bytes);
}

}  // namespace tarvis
