// The item setting dialog confirmed as it opens, without a dialog: what is written and which failures come.
#include "session/confirm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "printfiles/host_files.h"
#include "printfiles/print_options_file.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

struct Confirm : testing::Test, TestRun {
  using TestRun::Run;

  Confirm() {
    Run.Session.TempFolder = Folder.SystemPath();
    Run.Session.HostEdition = 1;
    Run.Session.HostVersion = "200";
    Run.Session.Mode = Mode::User;
    DefaultPrintOptions(Run);
  }

  // The failure that a mode of an edition ends with, as the user reads it.
  std::string FailureOf(const std::string& mode, std::int16_t edition, const std::string& version) {
    Desktop = {};
    Run.Session.Mode = ModeOf(mode);
    Run.Session.HostEdition = edition;
    Run.Session.HostVersion = version;
    EXPECT_THROW(ConfirmKeptOptions(Run), RunEnded);
    return Desktop.Messages.empty() ? "" : Desktop.Messages.back();
  }

  TempFolder Folder;
};

TEST_F(Confirm, DatesTheOptions) {
  Run.Options.DateTime.clear();
  ConfirmKeptOptions(Run);
  EXPECT_EQ(Run.Options.DateTime, "2026/03/05 17:04:09");
}

TEST_F(Confirm, RefusesDataThatAreThereAndCannotBeReadForHowManySetsOverlap) {
  for (const auto& [mode, file] : {std::pair("Trace", "Trace.tmp"), std::pair("SimEx", "Sim.tmp")}) {
    Folder.Write(file, "OverlapMode,1\r\n");
    std::filesystem::resize_file(Folder.Path() / file, LargestFile + 1);
    EXPECT_THAT(FailureOf(mode, 4, "200"), testing::HasSubstr("File is wrong.")) << mode;
    EXPECT_EQ(Run.Session.Diagnosis.find(std::string(file) + ": too large"), 0) << Run.Session.Diagnosis;
  }
}

TEST_F(Confirm, RefusesWhatTheDialogRefuses) {
  const std::string wrongArgument = "Printing Error|Argument is wrong.\nPrinting Process is canceled.";
  EXPECT_EQ(FailureOf("user", 1, "200"), wrongArgument);
  EXPECT_EQ(FailureOf("User", 1, "300"), wrongArgument);
  EXPECT_EQ(FailureOf("UPWizard", 2, ""), wrongArgument);
  EXPECT_EQ(FailureOf("IdxTbl", 2, ""),
            "Printing Error|Program Table File is wrong.\nPrinting Process is canceled.");
  Run.Session.Mode = Mode::Mecha;
  Run.Session.HostEdition = 1;
  Run.Session.HostVersion = "100";
  EXPECT_EQ(RunTimeFailureOf([this] { ConfirmKeptOptions(Run); }),
            "command line: mode: no function of this version: 'Mecha'");
}

TEST_F(Confirm, StopsAtAnOptionThatNothingInTheDialogCanShow) {
  const auto failure = [this] { return RunTimeFailureOf([this] { ConfirmKeptOptions(Run); }); };
  Run.Options.UserOption[2] = 3;
  EXPECT_EQ(failure(), "PrintOption.ToT: UserOption: element 3: no such choice: '3'");
  Run.Options.UserOption[2] = 1;
  Run.Options.UserHeader.Pages = -1;
  EXPECT_EQ(failure(), "PrintOption.ToT: UserHeader: element 5: no such choice: '-1'");
  Run.Options.UserHeader.Pages = 1;
  Run.Options.ColorType = 2;
  EXPECT_EQ(failure(), "PrintOption.ToT: ColorType: no such choice: '2'");
  Run.Options.ColorType = 1;
  Run.Options.Cover = 1;
  Run.Options.SelectCover = 4;
  EXPECT_EQ(failure(), "PrintOption.ToT: SelectCover: no such choice: '4'");
}

TEST_F(Confirm, LooksOnlyAtOptionsOfTheFunctionThatIsPrinted) {
  Run.Options.MechaOption[0] = 7;
  Run.Options.IdxTblOption.Range = 9;
  ConfirmKeptOptions(Run);
  EXPECT_EQ(Run.Options.MechaOption[0], 7);
}

TEST_F(Confirm, CutsALongTitleBetweenCharactersAndSaysSo) {
  Run.CodePage = CodePage(932);
  Run.Options.UserHeader.TitleText = std::string(39, 'a') + "\xE8\xA9\xA6";
  ConfirmKeptOptions(Run);
  EXPECT_EQ(Run.Options.UserHeader.TitleText, std::string(39, 'a'));
  EXPECT_THAT(
      Desktop.Messages,
      testing::ElementsAre("Input Error|Try with  Less Characters.  Up to 40 Characters can be Inputted."));
}

}  // namespace
}  // namespace tarvis
