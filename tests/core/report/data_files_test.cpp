// Which files a document was made of, and that they are still the same when they are asked for.
#include "report/data_files.h"

#include <gmock/gmock.h>

#include "support/host_run.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct DataFilesOfARun : HostRun {
  DataFilesOfARun() {
    for (const char* name : {"Sim.tmp", "Sim1.tmp", "Sim2.tmp", "User.tmp"}) Folder.Write(name, name);
  }
  std::vector<std::string> NamesFor(Mode mode) {
    Run.Session.Mode = mode;
    std::vector<std::string> names;
    for (const NamedBytes& file : DataFiles(Run, AllFunctions()).Read()) {
      names.push_back(file.Name);
      EXPECT_EQ(file.Bytes, file.Name);
    }
    return names;
  }
};

TEST_F(DataFilesOfARun, AreTheOneOfItsFunction) {
  EXPECT_THAT(NamesFor(Mode::User), ElementsAre("User.tmp"));
  EXPECT_THAT(NamesFor(Mode::Sim), ElementsAre("Sim.tmp"));
}

TEST_F(DataFilesOfARun, AreThoseOfAllDataSetsThatArePrinted) {
  Run.Session.OverlapMode = 1;
  Run.Session.OverlapNum = 2;
  for (auto& element : Run.Options.SimOption) element = 1;
  Run.Options.Cover = 1;
  EXPECT_THAT(NamesFor(Mode::Sim), ElementsAre("Sim.tmp", "Sim1.tmp", "Sim2.tmp"));
  for (auto& element : Run.Options.SimOption) element = 0;
  EXPECT_THAT(NamesFor(Mode::Sim), ElementsAre("Sim.tmp"));
}

TEST_F(DataFilesOfARun, AreNoneForAModeThatPrintsNothing) {
  EXPECT_THAT(NamesFor(Mode::PrnSetting), ElementsAre());
}

TEST_F(DataFilesOfARun, RefuseThoseThatHaveChanged) {
  Run.Session.Mode = Mode::User;
  const DataFiles files(Run, AllFunctions());
  Folder.Write("User.tmp", "longer than it was");
  EXPECT_THAT(RunTimeFailureOf([&] { (void)files.Read(); }), HasSubstr("User.tmp"));
}

TEST_F(DataFilesOfARun, RefuseThoseThatAreGone) {
  Run.Session.Mode = Mode::User;
  const DataFiles files(Run, AllFunctions());
  std::filesystem::remove(NativePath(PathOf("User.tmp")));
  EXPECT_THAT(RunTimeFailureOf([&] { (void)files.Read(); }), HasSubstr("no longer those of the document"));
}

}  // namespace
}  // namespace tarvis
