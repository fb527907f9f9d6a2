// Reading and composing a large parameter file, without any window.
//
// TARVIS_BENCH_FOLDER names the folder of a large User.tmp; it ends in a backslash.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <functional>

#include "functions/user/rptUserPrm.h"
#include "large_user_data.h"
#include "printfiles/user_file.h"
#include "support/report_run.h"

namespace tarvis {
namespace {

constexpr int Parameters = 16000;
constexpr int Switches = 1800;

struct Bench : ReportRun {
  Bench() {
    PrintSession& session = Run.Session;
    session.Mode = Mode::User;
    if (const char* folder = std::getenv("TARVIS_BENCH_FOLDER")) session.TempFolder = folder;
    session.ActiveHeader = {1, 1, 1, 1, 1, "Parameters"};
    Run.Options.UserHeader = session.ActiveHeader;
    Run.Options.UserOption = {1, 1, 1, 1, 1};
  }
};

void ReadParameters(benchmark::State& state) {
  Bench bench;
  for (auto _ : state) {
    if (LoadLines(bench.Run, bench.Run.Session.TempFolder + "User.tmp") < 0 || !ReadUserFile(bench.Run)) {
      state.SkipWithError("the file could not be read");
      break;
    }
  }
  state.counters["lines"] = bench.Run.Session.LineCount;
  state.counters["rows"] = bench.Run.User.UserNum;
}
BENCHMARK(ReadParameters)->Unit(benchmark::kMillisecond);

void ComposeParameterList(benchmark::State& state) {
  Bench bench;
  FillUserData(bench.Run.User, Parameters, Switches);
  const ArialMeasurer measurer;
  double pages = 0;
  for (auto _ : state) {
    rptUserPrm report({bench.Run, bench.Pictures});
    bench.Run.Session.MasterReport = &report;
    pages = static_cast<double>(Compose(report, PageSetup(), measurer).Pages.size());
  }
  state.counters["pages"] = pages;
  state.counters["rows"] = Parameters;
}
BENCHMARK(ComposeParameterList)->Unit(benchmark::kMillisecond);

// What a user waits for after OK, but for the painting: the master report reads its file and composes all.
void ReadAndComposeWholeDocument(benchmark::State& state) {
  Bench bench;
  const ArialMeasurer measurer;
  double pages = 0;
  for (auto _ : state) {
    rptTarvis report({bench.Run, bench.Pictures}, AllFunctions(), CreateFunctionReport, bench.Windows);
    bench.Run.Session.MasterReport = &report;
    pages = static_cast<double>(Compose(report, PageSetup(), measurer).Pages.size());
  }
  state.counters["pages"] = pages;
  state.counters["rows"] = bench.Run.User.UserNum;
}
BENCHMARK(ReadAndComposeWholeDocument)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvis

BENCHMARK_MAIN();
