// The seeds of the fuzzers, read without a fuzzer.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "printfiles/host_files.h"
#include "printfiles/idx_tbl_file.h"
#include "printfiles/jog_tbl_file.h"
#include "printfiles/mecha_file.h"
#include "printfiles/print_options_file.h"
#include "printfiles/real_trace_file.h"
#include "printfiles/sim_file.h"
#include "printfiles/trace_file.h"
#include "printfiles/upwizard_file.h"
#include "printfiles/user_file.h"
#include "printfiles/zone_tbl_file.h"
#include "support/source_folder.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

using Reader = bool (*)(PrintRun& run);

// Whether the reader accepts the file, or refuses it, or stops, each with a line that says why.
void ExpectAnOutcome(Reader reader, const std::filesystem::path& path) {
  SCOPED_TRACE(path.string());
  TestRun test;
  test.Run.Session.OverlapNum = 12;
  ASSERT_GE(LoadLines(test.Run, path.string()), 0);
  try {
    const bool accepted = reader(test.Run);
    EXPECT_EQ(accepted, test.Run.Session.Diagnosis.empty());
  } catch (const RunTimeFailure& failure) {
    EXPECT_TRUE(std::string(failure.what()).starts_with(path.filename().string() + ":")) << failure.what();
  }
}

TEST(FuzzCorpus, EveryReaderHasAnOutcomeForEverySeedAndEveryExample) {
  const std::pair<const char*, Reader> readers[] = {{"options", ReadPrintOptionsFile},
                                                    {"user", ReadUserFile},
                                                    {"upwizard", ReadUPWizardFile},
                                                    {"trace", ReadTraceFile},
                                                    {"real_trace", ReadRealTraceFile},
                                                    {"mecha", ReadMechaFile},
                                                    {"sim", ReadSimFile},
                                                    {"idx_tbl", ReadIdxTblFile},
                                                    {"zone_tbl", ReadZoneTblFile},
                                                    {"jog_tbl", ReadJogTblFile}};
  const std::filesystem::path source = SourceFolder();
  for (const auto& [name, reader] : readers) {
    for (const std::filesystem::path& folder : {source / "fuzz/corpus" / name, source / "docs/examples"}) {
      for (const auto& entry : std::filesystem::directory_iterator(folder))
        ExpectAnOutcome(reader, entry.path());
    }
  }
}

}  // namespace
}  // namespace tarvis
