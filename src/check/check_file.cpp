#include "check/check_file.h"

#include <algorithm>
#include <utility>

#include "check/check_options.h"
#include "check/check_pages.h"
#include "check/ending_desktop.h"
#include "functions/catalog.h"
#include "printfiles/data_file_scan.h"
#include "printfiles/host_files.h"
#include "printfiles/print_options_file.h"
#include "run/print_run.h"
#include "text/file_name.h"

namespace tarvis {
namespace {

constexpr std::string_view DataExtension = ".tmp";

// What the name of a file says.
struct FileName {
  std::string_view Folder;  // with its last backslash or slash
  std::string_view Name;

  bool IsOptions() const { return Name == OptionsFile; }
  // The data file of the function, or one of its overlapped data sets such as Trace1.tmp.
  bool IsOf(const PrintFunction& function) const {
    return IsNumbered(function.File, function.Overlap == nullptr ? "" : "0123456789");
  }
  bool IsMainFileOf(const PrintFunction& function) const { return IsNumbered(function.File, ""); }

 private:
  // Whether the name is `stem`, a number of `digits` without leading zero or nothing, and the extension.
  bool IsNumbered(std::string_view stem, std::string_view digits) const {
    if (Name.size() < stem.size() + DataExtension.size()) return false;
    if (!Name.starts_with(stem) || !Name.ends_with(DataExtension)) return false;
    const std::size_t digitCount = Name.size() - stem.size() - DataExtension.size();
    const std::string_view number = Name.substr(stem.size(), digitCount);
    return number.find_first_not_of(digits) == std::string_view::npos && !number.starts_with('0');
  }
};

FileName NameOf(std::string_view path) {
  const std::string_view name = FileNameOf(path);
  return {.Folder = path.substr(0, path.size() - name.size()), .Name = name};
}

// Overlapped data sets are printed as the main file next to them says.
void TakeOverlap(PrintRun& run, const PrintFunction& function, std::string_view folder) {
  if (function.Overlap == nullptr) return;
  const std::string mainFile = std::string(folder) + std::string(function.File) + std::string(DataExtension);
  if (LoadLines(run, mainFile) < 1) return;
  try {
    ScanOverlap(run);
  } catch (const RunTimeFailure&) {
    // The reader of the main file stops at the same number.
  }
}

// What is wrong with the options is in the session's diagnosis, or a RunTimeFailure; so with the data below.
bool AreGoodOptions(PrintRun& run, std::string_view path) {
  if (LoadLines(run, path) < 0 || !ReadPrintOptionsFile(run)) return false;
  RequireChoices(run);
  return true;
}

bool IsGoodData(PrintRun& run, const PrintFunction& function, std::string_view path) {
  const FileName name = NameOf(path);
  const bool isMainFile = name.IsMainFileOf(function);
  DefaultPrintOptions(run);
  run.Options.Cover = 1;
  TakeOverlap(run, function, name.Folder);
  if (isMainFile) static_cast<void>(CountMasterRows(run, &function));
  if (LoadLines(run, path) < 0 || !function.Read(run)) return false;
  const bool isResult = isMainFile && run.Session.OverlapMode != 0;
  run.Session.Mode = function.Mode;
  MakePages(run, function, isResult ? DataSetKind::OverlapResult : DataSetKind::Data);
  return true;
}

// Null if the name is none of a data file.
const PrintFunction* FunctionOf(const FileName& name) {
  const FunctionTable functions = AllFunctions();
  const auto found =
      std::ranges::find_if(functions, [&](const PrintFunction* each) { return name.IsOf(*each); });
  return found == functions.end() ? nullptr : *found;
}

}  // namespace

FileCheck CheckFile(std::string_view path, CodePage page) {
  const FileName file = NameOf(path);
  const std::string name(file.Name);
  const PrintFunction* function = FunctionOf(file);
  if (function == nullptr && !file.IsOptions())
    return {.IsGood = false, .Line = name + ": not the name of a host file"};
  EndingDesktop desktop;
  PrintRun run(desktop);
  run.CodePage = std::move(page);
  try {
    const bool isGood = function == nullptr ? AreGoodOptions(run, path) : IsGoodData(run, *function, path);
    if (!isGood) return {.IsGood = false, .Line = run.Session.Diagnosis};
  } catch (const RunTimeFailure& failure) {
    return {.IsGood = false, .Line = failure.what()};
  }
  const std::string contents = function == nullptr ? OptionsContents(run) : function->Contents(run);
  return {.IsGood = true, .Line = name + ": " + contents};
}

}  // namespace tarvis
