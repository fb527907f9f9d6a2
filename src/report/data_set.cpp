#include "report/data_set.h"

#include <cassert>
#include <limits>

#include "printfiles/host_files.h"
#include "printfiles/key_place.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

constexpr const char* FirstSuffix = "1";

void ReadDataFile(PrintRun& run, const PrintFunction& function, const std::string& suffix) {
  const std::string path = run.Session.TempFolder + DataFileName(function, suffix);
  if (LoadLines(run, path) < 0 || !function.Read(run)) ReportFailure(run, function.WrongFile);
}

// Title and group of overlapped data sets. The title is joined to the options' own text each time.
void NameOverlappedSet(PrintRun& run, const PrintFunction& function, const std::string& suffix,
                       DataSetKind kind) {
  PrintSession& session = run.Session;
  const std::string name = (run.Options.*function.Header).TitleText + "-";
  if (kind == DataSetKind::OverlapResult) {
    session.ActiveHeader.TitleText = name + "Overlapping result";
    if (function.Overlap->PrintsDetail(run.Options)) session.TocGroup = "Overlapping result";
  } else if (suffix == FirstSuffix) {
    session.ActiveHeader.TitleText = name + "Overlapping target";
    session.TocGroup = "Overlapping target";
  } else if (!suffix.empty()) {
    session.ActiveHeader.TitleText = name + "Overlapping data";
    session.TocGroup = "Overlapping data " + std::to_string(std::stoi(suffix) - 1) + "/" +
                       std::to_string(session.OverlapNum - 1);
  }
}

}  // namespace

std::string DataFileName(const PrintFunction& function, const std::string& suffix) {
  return std::string(function.File) + suffix + ".tmp";
}

int CountPrintedSets(const PrintRun& run, const PrintFunction& function) {
  const bool overlaps = function.Overlap != nullptr && run.Session.OverlapMode == 1;
  return overlaps && function.Overlap->PrintsDetail(run.Options) ? run.Session.OverlapNum : 0;
}

std::int16_t CountMasterRows(const PrintRun& run, const PrintFunction* function) {
  const int sets = function == nullptr ? 0 : CountPrintedSets(run, *function);
  const int rows = (run.Options.Cover == 1 ? 2 : 1) + sets;
  // A negative number would leave no row, not even that of the overlapping result.
  if (sets < 0 || rows > std::numeric_limits<std::int16_t>::max()) {
    FailurePlace place = PlaceOf(run, "OverlapNum");
    place.Text = std::to_string(run.Session.OverlapNum);
    throw RunTimeFailure("number out of range", place);
  }
  return static_cast<std::int16_t>(rows);
}

void ListModules(PrintRun& run, const PrintFunction& function, DataSetKind kind) {
  assert(kind == DataSetKind::Data || function.Overlap != nullptr);
  PrintSession& session = run.Session;
  const ModuleList modules =
      kind == DataSetKind::OverlapResult ? function.Overlap->ResultModules(run) : function.Modules(run);
  // Names of a print before must not come back where this list leaves an index empty.
  session.ModuleNames.Clear();
  session.ModuleLast = static_cast<std::int16_t>(modules.size() - 1);
  session.ModuleNames.ResizeKeeping(session.ModuleLast);
  for (int index = 0; index <= session.ModuleLast; ++index)
    session.ModuleNames[index] = modules[static_cast<std::size_t>(index)];
}

void LoadDataSet(PrintRun& run, const PrintFunction& function, const std::string& suffix, DataSetKind kind) {
  ReadDataFile(run, function, suffix);
  ListModules(run, function, kind);
  if (function.Overlap != nullptr) NameOverlappedSet(run, function, suffix, kind);
}

}  // namespace tarvis
