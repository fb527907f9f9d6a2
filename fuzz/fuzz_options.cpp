// The options file: besides what every reader must hold, a file that reads is written back, and that file
// reads back to the same bytes.
#include <array>
#include <string>

#include "fuzz_run.h"
#include "printfiles/option_lines.h"
#include "printfiles/print_options_file.h"

namespace {

using namespace tarvis;

constexpr std::array Pages = {1252, 932, 936, 949, 950};

std::string Written(PrintRun& run) {
  run.Options.FileSpec = 4;
  std::string file;
  for (const OptionLine& line : OptionLines(run.Options)) {
    file += std::string(line.Key) + "," + run.CodePage.FromUtf8(line.Write()) + "\r\n";
  }
  return file;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static UnreachableDesktop desktop;
  PrintRun run(desktop);
  run.CodePage = CodePage(Pages[size % Pages.size()]);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (!ReadBytes(run, ReadPrintOptionsFile, "PrintOption.ToT", bytes)) return 0;
  const std::string first = Written(run);
  run.Options = {};
  Require(ReadBytes(run, ReadPrintOptionsFile, "PrintOption.ToT", first));
  Require(Written(run) == first);
  return 0;
}
