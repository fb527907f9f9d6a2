#include "report/data_files.h"

#include <fstream>
#include <system_error>

#include "report/data_set.h"
#include "run/print_run.h"
#include "text/native_path.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

// The empty one is that of the data file itself; those of the data sets that are printed follow.
std::vector<std::string> Suffixes(const PrintRun& run, const PrintFunction& function) {
  std::vector<std::string> suffixes{{}};
  const int sets = CountPrintedSets(run, function);
  for (int set = 1; set <= sets; ++set) suffixes.push_back(std::to_string(set));
  return suffixes;
}

bool Fill(std::string& bytes, const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())).good();
}

}  // namespace

// Zeros where there is no such file.
DataFiles::State DataFiles::StateOf(const std::filesystem::path& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return {};
  return {size, std::filesystem::last_write_time(path, error)};
}

DataFiles::DataFiles(const PrintRun& run, FunctionTable functions) {
  const PrintFunction* const function = FindFunction(functions, run.Session.Mode);
  if (function == nullptr) return;
  for (const std::string& suffix : Suffixes(run, *function)) {
    const std::string name = DataFileName(*function, suffix);
    const std::filesystem::path path = NativePath(run.Session.TempFolder + name);
    files_.push_back({name, path, StateOf(path)});
  }
}

std::vector<NamedBytes> DataFiles::Read() const {
  std::vector<NamedBytes> files;
  for (const Entry& entry : files_) {
    // Looked at before it is opened, too: what is no file any more might never answer.
    std::string bytes(static_cast<std::size_t>(entry.Noted.Size), '\0');
    const bool isRead = StateOf(entry.Path) == entry.Noted && Fill(bytes, entry.Path);
    if (!isRead || StateOf(entry.Path) != entry.Noted) {
      throw RunTimeFailure("the data are no longer those of the document",
                           {.File = entry.Name, .Line = 0, .Key = {}, .Text = {}});
    }
    files.push_back({entry.Name, std::move(bytes)});
  }
  return files;
}

}  // namespace tarvis
