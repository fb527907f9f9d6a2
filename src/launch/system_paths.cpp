#include "launch/system_paths.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "run/failures.h"
#include "run/print_run.h"
#include "text/text.h"

namespace tarvis {
namespace {

constexpr std::size_t VersionLength = 3;

struct EditionKeys {
  std::int16_t Edition;
  const char* Key;
  const char* BaseFolder;
  const char* Version;
  const char* HelpFolder;
};

// Edition 4 takes its base folder from another value than its siblings, and must.
constexpr std::array Editions = {
    EditionKeys{1, R"(SOFTWARE\Korvane\Tessaline\Brenmark\Quillon\Setup)", "SystemPath", "Quillon",
                "QuillonHelpPath"},
    EditionKeys{2, R"(SOFTWARE\Korvane\Tessaline\Brenmark\Rotavon\Setup)", "SystemPath", "Rotavon",
                "RotavonHelpPath"},
    EditionKeys{4, R"(SOFTWARE\Korvane\Tessaline\Brenmark\Quillex\Setup)", "SavePath", "Quillex",
                "QuillexHelpPath"},
};

// The value up to its first NUL.
std::string Value(HostRegistry& registry, const EditionKeys& keys, const char* valueName) {
  const std::string value = registry.Value(keys.Key, valueName);
  return value.substr(0, value.find('\0'));
}

}  // namespace

void LoadSystemPaths(PrintRun& run, HostRegistry& registry) {
  PrintSession& session = run.Session;
  const auto* keys = std::ranges::find(Editions, session.HostEdition, &EditionKeys::Edition);
  if (keys == Editions.end()) {
    session.Diagnosis = "command line: no such edition: '" + std::to_string(session.HostEdition) + "'";
    ReportFailure(run, Failure::WrongArgument);
  }
  session.SystemFolder = Value(registry, *keys, keys->BaseFolder) + R"(\bin\)";
  session.TempFolder = session.SystemFolder + R"(dat\tmp\)";
  session.HostVersion = LeftCharacters(Value(registry, *keys, keys->Version), VersionLength);
  session.HelpFile = Value(registry, *keys, keys->HelpFolder) + "\\";
}

}  // namespace tarvis
