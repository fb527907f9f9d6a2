// Numbered failures and the end of a run: messages, beeps, exit status, deleted files.
#include "run/failures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "core/run/failing_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

TEST_F(Failures, BeepFiveTimesThenShowTwoLinesThenEndTheRun) {
  EXPECT_EQ(ExitStatusOf([&] { ReportFailure(Run, Failure{10}); }), 0);
  EXPECT_THAT(
      Desktop.Calls,
      ElementsAre(
          "beep", "beep", "beep", "beep", "beep",
          "message Printing Error|Printing Items Setting File is wrong.\nPrinting Process is canceled.",
          "end 0"));
}

TEST_F(Failures, ShowTheHostsDevelopersWhatWasWrong) {
  Run.Session.Diagnosis = "Trace.tmp:17: unknown key 'Cursolselect'";
  ExitStatusOf([&] { ReportFailure(Run, Failure{4}); });
  EXPECT_EQ(Desktop.Calls.front(), "diagnose Trace.tmp:17: unknown key 'Cursolselect'");
}

TEST_F(Failures, AreNoticedBeforeAnythingIsDeletedOrSaid) {
  struct Refusal {
    Failure Number;
    std::string Reason;
  };
  struct NoUser : FakeDesktop {
    void NoticeFailure(Failure failure, const std::string& diagnosis) override {
      throw Refusal{failure, diagnosis};
    }
  } desktop;
  PrintRun run(desktop);
  run.Session.TempFolder = Folder.HostPath();
  run.Session.Diagnosis = "User.tmp:3: unknown key 'X'";
  Folder.Write("User.tmp", "X");
  try {
    ReportFailure(run, Failure::WrongParameterFile);
  } catch (const Refusal& refusal) {
    EXPECT_EQ(refusal.Number, Failure::WrongParameterFile);
    EXPECT_EQ(refusal.Reason, "User.tmp:3: unknown key 'X'");
  }
  EXPECT_THAT(desktop.Calls, testing::IsEmpty());
  EXPECT_TRUE(Folder.Has("User.tmp"));
}

TEST_F(Failures, HaveTheirWords) {
  EXPECT_STREQ(FailureMessage(Failure{1}), "Argument is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{2}), "Logo Mark File is not found.");
  EXPECT_STREQ(FailureMessage(Failure{3}), "Parameter File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{4}), "Tracing File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{5}), "Dynamics Simulation File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{6}), "Graph File (Black & White) is not found.");
  EXPECT_STREQ(FailureMessage(Failure{7}), "Explanatory File is not found.");
  EXPECT_STREQ(FailureMessage(Failure{8}), "Graph File (Color) is not found.");
  EXPECT_STREQ(FailureMessage(Failure{9}), "Mechanical Setting Model BMP File is not found.");
  EXPECT_STREQ(FailureMessage(Failure{10}), "Printing Items Setting File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{11}), "Mechanical Analysis File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{12}), "Parameter Wizard is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{13}), "Parameter Wizard BMP File is not found.");
  EXPECT_STREQ(FailureMessage(Failure{14}), "Real-Time Tracing File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{15}), "Program Table File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{16}), "Zone Table File is wrong.");
  EXPECT_STREQ(FailureMessage(Failure{17}), "Jog Speed Table File is wrong.");
}

TEST_F(Failures, DeleteTheDataFilesToo) {
  Folder.Write("tmp/User.tmp", "");
  ExitStatusOf([&] { ReportFailure(Run, Failure{3}); });
  EXPECT_FALSE(Folder.Has("tmp/User.tmp"));
}

TEST_F(Failures, EndOfARunDeletesEveryDataFileAndPictureInWhateverLetterCase) {
  for (const char* name : {"User.tmp", "TRACE1.TMP", "other run.tmp", "graph.emf", "NOTE.Emf"}) {
    Folder.Write(std::string("tmp/") + name, "x");
  }
  for (const char* name :
       {"tmp/keep.tmpx", "tmp/tmp", "tmp/model.bmp", "tmp/sub/User.tmp", "PrintOption.ToT", "a.tmp"}) {
    Folder.Write(name, "x");
  }
  EXPECT_EQ(ExitStatusOf([&] { EndRun(Run); }), 0);
  for (const char* name : {"User.tmp", "TRACE1.TMP", "other run.tmp", "graph.emf", "NOTE.Emf"}) {
    EXPECT_FALSE(Folder.Has(std::string("tmp/") + name)) << name;
  }
  for (const char* name :
       {"tmp/keep.tmpx", "tmp/tmp", "tmp/model.bmp", "tmp/sub/User.tmp", "PrintOption.ToT", "a.tmp"}) {
    EXPECT_TRUE(Folder.Has(name)) << name;
  }
}

TEST_F(Failures, EndOfARunPassesOverWhatCanNotBeDeleted) {
  Folder.Write("tmp/a.tmp/inside", "x");  // a folder with this name stays
  Folder.Write("tmp/b.tmp", "x");
  EXPECT_EQ(ExitStatusOf([&] { EndRun(Run); }), 0);
  EXPECT_TRUE(Folder.Has("tmp/a.tmp/inside"));
  EXPECT_FALSE(Folder.Has("tmp/b.tmp"));
}

TEST_F(Failures, EndOfARunBeforeTheFoldersAreKnownDeletesNothing) {
  const std::filesystem::path before = std::filesystem::current_path();
  Folder.Write("User.tmp", "x");
  std::filesystem::current_path(Folder.Path());
  Run.Session.TempFolder.clear();
  EXPECT_EQ(ExitStatusOf([&] { EndRun(Run); }), 0);
  std::filesystem::current_path(before);
  EXPECT_TRUE(Folder.Has("User.tmp"));
}

TEST_F(Failures, EndOfARunEndsAlsoWithoutItsFolder) {
  Run.Session.TempFolder = Folder.HostPath("nowhere\\");
  EXPECT_EQ(ExitStatusOf([&] { EndRun(Run); }), 0);
}

}  // namespace
}  // namespace tarvis
