#include "printfiles/print_options_file.h"

#include <optional>
#include <string>

#include "printfiles/option_lines.h"
#include "printfiles/replace_file.h"
#include "run/print_run.h"
#include "text/date_text.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

constexpr std::int16_t FileSpec = 4;

HeaderOptions DefaultHeader(const char* title) {
  return {.Title = 1, .ModelsInfo = 1, .PrintDate = 1, .FileName = 1, .Pages = 1, .TitleText = title};
}

void DefaultHeaders(PrintOptions& options) {
  options.UserHeader = DefaultHeader("Parameters");
  options.PrmWizHeader = DefaultHeader("Parameter Wizard");
  options.PrmWizHeader.FileName = 0;  // the wizard's data come from no file of the user
  options.TraceHeader = DefaultHeader("Tracing");
  options.RealTraceHeader = DefaultHeader("Real-Time Tracing");
  options.MechaHeader = DefaultHeader("Mechanical Analysis");
  options.SimHeader = DefaultHeader("Dynamics Simulation");
  options.IdxTblHeader = DefaultHeader("Program Table");
  options.ZoneTblHeader = DefaultHeader("Zone Table");
  options.JogTblHeader = DefaultHeader("Jog Speed Table");
}

void NoteLines(PrintSession& session) {
  session.OptionLines.clear();
  for (int index = 0; index < session.LineCount; ++index) {
    std::string_view line = session.Lines[index];
    session.OptionLines.insert_or_assign(std::string(NextField(line)), index + 1);
  }
}

}  // namespace

bool ReadPrintOptionsFile(PrintRun& run) {
  KeyTable keys;
  for (OptionLine& line : OptionLines(run.Options)) keys.Add(line.Key, std::move(line.Read));
  if (!ReadLines(run, keys)) return false;
  NoteLines(run.Session);
  return true;
}

FailurePlace OptionPlace(PrintRun& run, const std::int16_t& option) {
  FailurePlace place{.File = OptionsFile, .Line = 0, .Key = {}, .Text = std::to_string(option)};
  for (const OptionLine& line : OptionLines(run.Options)) {
    const std::optional<int> element = line.ElementOf(option);
    if (!element) continue;
    place.Key = line.Key;
    place.Element = *element;
    const auto found = run.Session.OptionLines.find(line.Key);
    if (found != run.Session.OptionLines.end()) place.Line = found->second;
  }
  return place;
}

void DefaultPrintOptions(PrintRun& run) {
  PrintOptions options;
  options.FileSpec = FileSpec;
  options.FileType = "PrintOption TmpFile For Print";
  options.MadeBy = "Quillex Ver2.00";
  options.DateTime = DateTimeText(run.Now());
  DefaultHeaders(options);
  options.UserOption.fill(1);
  options.TraceOption.fill(1);
  options.RealTraceOption.fill(1);
  options.MechaOption.fill(1);
  options.SimOption.fill(1);
  options.IdxTblOption.Comment = 1;
  options.ZoneTblOption = 1;
  options.JogTblOption = 1;
  run.Options = options;
}

bool WritePrintOptionsFile(PrintRun& run, std::string_view path) {
  run.Options.FileSpec = FileSpec;
  std::string bytes;
  for (const OptionLine& line : OptionLines(run.Options)) {
    bytes += std::string(line.Key) + ',' + run.CodePage.FromUtf8(line.Write()) + "\r\n";
  }
  return ReplaceFile(NativePath(path), bytes, run.SettleFile);
}

}  // namespace tarvis
