// The main routine: arguments, folders, printer guard, options, and what it does where one of them is wrong.
#include "launch/launch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <map>
#include <string>
#include <vector>

#include "launch/command_line.h"
#include "launch/load_print_options.h"
#include "launch/system_paths.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Split(std::string_view line) {
  const CheckedArray<std::string> arguments = SplitCommandLine(line, 4);
  EXPECT_EQ(arguments[0], "");
  std::vector<std::string> found;
  for (int index = 1; index <= arguments.HighestIndex(); ++index) found.push_back(arguments[index]);
  return found;
}

TEST(SplitCommandLine, SeparatesAtRunsOfBlanksAndTabs) {
  EXPECT_THAT(Split("User\thelp.html  7   1"), ElementsAre("User", "help.html", "7", "1"));
  EXPECT_THAT(Split("  User help.html 7 1\t "), ElementsAre("User", "help.html", "7", "1"));
}

TEST(SplitCommandLine, DropsAFifthArgumentAndThoseAfterIt) {
  EXPECT_THAT(Split("User h 7 1 five six"), ElementsAre("User", "h", "7", "1"));
}

TEST(SplitCommandLine, GivesQuotationMarksNoMeaning) {
  EXPECT_THAT(Split("User \"a b\" 1"), ElementsAre("User", "\"a", "b\"", "1"));
}

TEST(SplitCommandLine, FindsNothingInAnEmptyLine) {
  EXPECT_THAT(Split(""), IsEmpty());
  EXPECT_THAT(Split(" \t "), IsEmpty());
}

TEST(SplitCommandLine, TakesOptionsOfTheToolkitAsArguments) {
  EXPECT_THAT(Split("-style windows"), ElementsAre("-style", "windows"));
}

class NotingServices : public HostRegistry, public Printers, public ProgramWindows {
 public:
  explicit NotingServices(std::vector<std::string>& calls) : calls_(calls) {}

  std::string Value(const std::string& key, const std::string& valueName) override {
    calls_.push_back("registry " + key + "|" + valueName);
    return Values[valueName];
  }
  int NDevices() override { return PrinterCount; }
  void PrintDialog() override { calls_.emplace_back("no printer"); }
  void ShowPrintSetting() override { calls_.emplace_back("dialog"); }
  void UnloadMasterReport() override { calls_.emplace_back("unload"); }

  LaunchServices Services() { return {*this, *this, *this}; }

  std::map<std::string, std::string> Values;
  int PrinterCount = 1;

 private:
  std::vector<std::string>& calls_;
};

class LaunchedRun : public testing::Test, protected TestRun {
 protected:
  using TestRun::Run;

  LaunchedRun() {
    for (const char* name : {"SystemPath", "SavePath"}) Host.Values[name] = Folder.Path().string();
    for (const char* name : {"Quillon", "Rotavon", "Quillex"}) Host.Values[name] = "200.5";
    for (const char* name : {"QuillonHelpPath", "RotavonHelpPath", "QuillexHelpPath"})
      Host.Values[name] = "/help";
    Folder.Write("bin/dat/tmp/User.tmp", "");
  }

  // The calls that the outside saw, those to the registry left out.
  std::vector<std::string> CallsOf(std::string_view commandLine) {
    try {
      Launch(Run, commandLine, Host.Services());
    } catch (const RunEnded&) {
    }
    std::erase_if(Desktop.Calls, [](const std::string& call) { return call.starts_with("registry"); });
    return Desktop.Calls;
  }

  TempFolder Folder;
  NotingServices Host{Desktop.Calls};
};

TEST_F(LaunchedRun, LeavesTheSessionFilledAndTheDialogOpen) {
  EXPECT_THAT(CallsOf("User help.html 7 1"), ElementsAre("dialog"));
  EXPECT_EQ(Run.Session.Mode, Mode::User);
  EXPECT_EQ(Run.Session.HostEdition, 1);
  EXPECT_EQ(Run.Session.HostVersion, "200");
  EXPECT_EQ(Run.Session.SystemFolder, Folder.Path().string() + "\\bin\\");
  EXPECT_EQ(Run.Session.TempFolder, Folder.Path().string() + "\\bin\\dat\\tmp\\");
  EXPECT_EQ(Run.Session.HelpFile, "/help\\help.html");
  EXPECT_EQ(Run.Session.HelpContextId, 7);
  EXPECT_EQ(Run.Options.UserHeader.TitleText, "Parameters") << "a first run has the defaults";
}

TEST_F(LaunchedRun, IsFailure1WithoutArgumentAndDeletesNothing) {
  EXPECT_THAT(
      CallsOf(" "),
      ElementsAre("diagnose command line: no argument", "beep", "beep", "beep", "beep", "beep",
                  "message Printing Error|Argument is wrong.\nPrinting Process is canceled.", "end 0"));
  EXPECT_TRUE(Folder.Has("bin/dat/tmp/User.tmp"));
}

TEST_F(LaunchedRun, IsARunTimeFailureWithOneToThreeArguments) {
  for (const char* line : {"User", "User help.html", "User help.html 7"}) {
    EXPECT_EQ(RunTimeFailureOf([&] { CallsOf(line); }), "command line: argument 4: missing") << line;
  }
  EXPECT_THAT(Desktop.Calls, IsEmpty());
}

TEST_F(LaunchedRun, IsFailure1WithAnUnknownEditionBeforeTheFoldersAreKnown) {
  for (const char* edition : {"3", "0", "-1", "5"}) {
    Desktop.Calls.clear();
    const std::vector<std::string> calls = CallsOf("User help.html 7 " + std::string(edition));
    EXPECT_EQ(calls.at(0), "diagnose command line: no such edition: '" + std::string(edition) + "'");
    EXPECT_EQ(calls.at(6), "message Printing Error|Argument is wrong.\nPrinting Process is canceled.")
        << edition;
    EXPECT_EQ(Run.Session.TempFolder, "");
  }
  EXPECT_TRUE(Folder.Has("bin/dat/tmp/User.tmp"));
}

TEST_F(LaunchedRun, RoundsTheEditionToTheEvenNumber) {
  CallsOf("User help.html 7 1.5");
  EXPECT_EQ(Run.Session.HostEdition, 2);
}

TEST_F(LaunchedRun, StopsAtANumberThatIsNone) {
  EXPECT_EQ(RunTimeFailureOf([&] { CallsOf("User help.html 7 one"); }),
            "command line: argument 4: not a number: 'one'");
  EXPECT_EQ(Run.Session.TempFolder, "") << "the edition is converted before the registry is read";
  EXPECT_EQ(RunTimeFailureOf([&] { CallsOf("User help.html seven 1"); }),
            "command line: argument 3: not a number: 'seven'");
  EXPECT_EQ(RunTimeFailureOf([&] { CallsOf("User help.html 2147483648 1"); }),
            "command line: argument 3: number out of range: '2147483648'");
}

TEST_F(LaunchedRun, KeepsTheTextOfAModeThatItDoesNotKnow) {
  EXPECT_THAT(CallsOf("user help.html 7 1"), ElementsAre("dialog"));
  EXPECT_EQ(Run.Session.Mode, Mode::None);
  EXPECT_EQ(Run.Session.ModeText, "user");
}

TEST_F(LaunchedRun, ShowsAMessageAndEndsWithoutPrinter) {
  Host.PrinterCount = 0;
  Folder.Write("bin/PrintOption.ToT", "unknown\r\n");
  EXPECT_THAT(CallsOf("User help.html 7 1"), ElementsAre("no printer", "end 0"))
      << "options are not read yet";
  EXPECT_FALSE(Folder.Has("bin/dat/tmp/User.tmp"));
}

TEST_F(LaunchedRun, ChangesSettingsWithoutPrinter) {
  Host.PrinterCount = 0;
  EXPECT_THAT(CallsOf("PrnSetting help.html 7 1"), ElementsAre("dialog"));
}

TEST_F(LaunchedRun, IsFailure10WithARefusedOptionsFile) {
  Folder.Write("bin/PrintOption.ToT", "File-Spec,4\r\nColour,1\r\n");
  EXPECT_THAT(
      CallsOf("User help.html 7 1"),
      ElementsAre("diagnose PrintOption.ToT:2: unknown key 'Colour'", "beep", "beep", "beep", "beep", "beep",
                  "message Printing Error|Printing Items Setting File is wrong.\n"
                  "Printing Process is canceled.",
                  "end 0"));
  EXPECT_FALSE(Folder.Has("bin/dat/tmp/User.tmp"));
  EXPECT_TRUE(Folder.Has("bin/PrintOption.ToT"));
}

TEST_F(LaunchedRun, HasZerosAndNotTheDefaultsWithAnEmptyOptionsFile) {
  Folder.Write("bin/PrintOption.ToT", "");
  EXPECT_THAT(CallsOf("User help.html 7 1"), ElementsAre("dialog"));
  const HeaderOptions& header = Run.Options.UserHeader;
  EXPECT_THAT((std::array{header.Title, header.ModelsInfo, header.PrintDate, header.FileName, header.Pages}),
              testing::Each(0));
  EXPECT_EQ(header.TitleText, "");
}

TEST_F(LaunchedRun, GoesOnWithTheRootFolderWithoutRegistryValues) {
  Host.Values.clear();
  EXPECT_THAT(CallsOf("User help.html 7 2"), ElementsAre("dialog"));
  EXPECT_EQ(Run.Session.SystemFolder, "\\bin\\");
  EXPECT_EQ(Run.Session.TempFolder, "\\bin\\dat\\tmp\\");
  EXPECT_EQ(Run.Session.HostVersion, "");
  EXPECT_EQ(Run.Session.HelpFile, "\\help.html");
}

struct Edition {
  int Number;
  const char* Key;
  const char* BaseFolder;
  const char* Version;
  const char* HelpFolder;
};

class Editions : public LaunchedRun, public testing::WithParamInterface<Edition> {};

TEST_P(Editions, ReadTheirOwnThreeValues) {
  Run.Session.HostEdition = static_cast<std::int16_t>(GetParam().Number);
  LoadSystemPaths(Run, Host);
  const std::string key =
      R"(registry SOFTWARE\Korvane\Tessaline\Brenmark\)" + std::string(GetParam().Key) + "\\Setup|";
  EXPECT_THAT(Desktop.Calls,
              testing::UnorderedElementsAre(key + GetParam().BaseFolder, key + GetParam().Version,
                                            key + GetParam().HelpFolder));
}

INSTANTIATE_TEST_SUITE_P(All, Editions,
                         testing::Values(Edition{1, "Quillon", "SystemPath", "Quillon", "QuillonHelpPath"},
                                         Edition{2, "Rotavon", "SystemPath", "Rotavon", "RotavonHelpPath"},
                                         Edition{4, "Quillex", "SavePath", "Quillex", "QuillexHelpPath"}));

TEST_F(LaunchedRun, CutsRegistryValuesAtTheirFirstNul) {
  Host.Values["SystemPath"] = std::string("/opt\0/host", 10);
  Host.Values["Quillon"] = std::string("1\0 00", 5);
  Run.Session.HostEdition = 1;
  LoadSystemPaths(Run, Host);
  EXPECT_EQ(Run.Session.SystemFolder, "/opt\\bin\\");
  EXPECT_EQ(Run.Session.HostVersion, "1");
}

TEST_F(LaunchedRun, TakesARegistryValueWithoutNulWhole) {
  Host.Values["SystemPath"] = std::string(1024, 'p');
  Run.Session.HostEdition = 1;
  LoadSystemPaths(Run, Host);
  EXPECT_EQ(Run.Session.SystemFolder, std::string(1024, 'p') + "\\bin\\");
}

TEST_F(LaunchedRun, ClearsWhatTheSessionKeepsOfOverlapAndProgress) {
  Run.Session.SystemFolder = Folder.HostPath();
  Run.Session.OverlapMode = 1;
  Run.Session.OverlapNum = 3;
  Run.Session.FinishedReports = 2;
  Run.Session.TocGroup = "Tracing";
  Run.Session.SimExMode = 1;
  LoadPrintOptions(Run);
  EXPECT_EQ(Run.Session.OverlapMode, 0);
  EXPECT_EQ(Run.Session.OverlapNum, 0);
  EXPECT_EQ(Run.Session.FinishedReports, 0);
  EXPECT_EQ(Run.Session.TocGroup, "");
  EXPECT_EQ(Run.Session.SimExMode, 0);
}

TEST(PrintRun, HasTheSystemsOwnClockUnlessATestPinsIt) {
  FakeDesktop desktop;
  std::tm time = PrintRun(desktop).Now();
  EXPECT_NEAR(std::difftime(std::time(nullptr), std::mktime(&time)), 0, 60);
}

}  // namespace
}  // namespace tarvis
