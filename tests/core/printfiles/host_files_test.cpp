// Lines and fields of the host's files, and how a file is read.
#include "printfiles/host_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/test_run.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

std::vector<std::string> LinesOf(const PrintRun& run) {
  std::vector<std::string> lines;
  for (int index = 0; index < run.Session.LineCount; ++index) lines.emplace_back(run.Session.Lines[index]);
  return lines;
}

std::vector<std::string> Cut(const std::string& bytes) {
  TestRun test;
  EXPECT_EQ(LoadBytes(test.Run, "User.tmp", bytes), test.Run.Session.LineCount);
  return LinesOf(test.Run);
}

using Lines = std::vector<std::string>;

TEST(LoadLines, EndsALineAtCrLfOrCrButNotAtLf) {
  EXPECT_EQ(Cut("a\r\nb\rc\nd\r\n"), (Lines{"a", "b", "c\nd"}));
  EXPECT_EQ(Cut("a\rb\r"), (Lines{"a", "b"}));
  EXPECT_EQ(Cut("a\nb\n"), (Lines{"a\nb\n"}));
  EXPECT_EQ(Cut("a\r\r\nb"), (Lines{"a", "", "b"}));
}

TEST(LoadLines, ReadsAFinalLineWithoutLineEnd) {
  EXPECT_EQ(Cut("a\r\nb"), (Lines{"a", "b"}));
}

TEST(LoadLines, CountsAnEmptyLineAtTheEnd) {
  EXPECT_EQ(Cut("a\r\n\r\n"), (Lines{"a", ""}));
}

TEST(LoadLines, EndsATextInALoneCarriageReturn) {
  EXPECT_EQ(Cut("a\r"), (Lines{"a"}));
}

TEST(LoadLines, GivesAnEmptyFileNoLineButTheSpare) {
  TestRun test;
  EXPECT_EQ(LoadBytes(test.Run, "User.tmp", ""), 0);
  EXPECT_EQ(test.Run.Session.Lines.HighestIndex(), 0);
  EXPECT_EQ(test.Run.Session.Lines[0], "");
}

TEST(LoadLines, KeepsASpareElementAfterTheLastLine) {
  TestRun test;
  test.Load("User.tmp", {"a", "b"});
  EXPECT_EQ(test.Run.Session.Lines[2], "");
  EXPECT_EQ(RunTimeFailureOf([&] { test.Run.Session.Lines[3]; }), "Lines: subscript out of range: '3'");
  EXPECT_EQ(RunTimeFailureOf([&] { test.Run.Session.Lines[-1]; }), "Lines: subscript out of range: '-1'");
}

TEST(LoadLines, KeepsNulBytesAndVeryLongLines) {
  const std::string nul("a\0b", 3);
  const std::string endless(1 << 20, 'x');
  EXPECT_EQ(Cut(nul + "\r\n" + endless), (Lines{nul, endless}));
}

TEST(LoadLines, ConvertsFromTheCodePage) {
  TestRun test;
  test.Run.CodePage = CodePage(932);
  LoadBytes(test.Run, "User.tmp", "Comment,\x95\x5C\r\nplain\r\nhalf\x95\r\nend");
  EXPECT_EQ(LinesOf(test.Run), (Lines{"Comment,\u8868", "plain", "half\uFFFD", "end"}));
}

TEST(LoadLines, LoadsMoreLinesThanAReaderTakes) {
  TestRun test;
  test.Load("User.tmp", Lines(32769, "x"));
  EXPECT_EQ(test.Run.Session.LineCount, 32769);
}

TEST(LoadLines, ReadsAFileThroughBackslashes) {
  const TempFolder folder;
  folder.Write("bin/dat/tmp/User.tmp", "File-Spec,3\r\n");
  TestRun test;
  EXPECT_EQ(LoadLines(test.Run, folder.HostPath("bin\\dat\\tmp\\User.tmp")), 1);
  EXPECT_EQ(test.Run.Session.Lines[0], "File-Spec,3");
  EXPECT_EQ(test.Run.Session.LinesFile, "User.tmp");
  EXPECT_EQ(test.Run.Session.Diagnosis, "");
}

TEST(LoadLines, FailsOnAMissingFileAndForgetsTheOneBefore) {
  const TempFolder folder;
  TestRun test;
  test.Load("Trace.tmp", {"File-Spec,3"});
  EXPECT_EQ(LoadLines(test.Run, folder.HostPath("User.tmp")), -1);
  EXPECT_EQ(test.Run.Session.LineCount, -1);
  EXPECT_EQ(test.Run.Session.Lines.HighestIndex(), -1);
  EXPECT_EQ(test.Run.Session.Diagnosis, "User.tmp: can't be read");
}

TEST(LoadLines, RefusesAFileThatIsTooLargeByItsSizeAndReadsNothingOfIt) {
  const TempFolder folder;
  folder.Write("User.tmp", "");
  folder.Write("Trace.tmp", "");
  std::filesystem::resize_file(folder.Path() / "User.tmp", 5'000'000'000);
  std::filesystem::resize_file(folder.Path() / "Trace.tmp", LargestFile);
  TestRun test;
  EXPECT_EQ(LoadLines(test.Run, folder.HostPath("User.tmp")), -1);
  EXPECT_EQ(test.Run.Session.Diagnosis,
            "User.tmp: too large: 5000000000 bytes, where 33554432 are read at most");
  EXPECT_EQ(LoadLines(test.Run, folder.HostPath("Trace.tmp")), 1);
}

TEST(LoadLines, FailsOnAFolder) {
  const TempFolder folder;
  folder.Write("User.tmp/inside", "");
  TestRun test;
  EXPECT_EQ(LoadLines(test.Run, folder.HostPath("User.tmp")), -1);
}

TEST(FileExists, AsksForARegularFile) {
  const TempFolder folder;
  folder.Write("sub/logo.bmp", "x");
  EXPECT_TRUE(FileExists(folder.HostPath("sub\\logo.bmp")));
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(FileExists(folder.HostPath("sub")));
  EXPECT_FALSE(FileExists(folder.HostPath("sub\\")));
  EXPECT_FALSE(FileExists(folder.HostPath("sub\\*.bmp")));
  EXPECT_FALSE(FileExists(folder.HostPath("sub\\logo.bm?")));
  EXPECT_FALSE(FileExists(folder.HostPath("sub\\logo.bmp") + std::string(1, '\0')));
}

TEST(NativePath, SeparatesFoldersAsTheSystemDoes) {
  EXPECT_EQ(NativePath("\\bin\\dat").generic_string(), "/bin/dat");
  EXPECT_EQ(NativePath("/opt/host\\bin\\a b.txt").generic_string(), "/opt/host/bin/a b.txt");
}

}  // namespace
}  // namespace tarvis
