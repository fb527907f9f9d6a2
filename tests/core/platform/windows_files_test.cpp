// Files as people have them on Windows: with long names, read-only, or open in another program.
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <future>
#include <string>

#undef ReplaceFile  // a macro of Windows

#include "platform/base/file_names.h"
#include "platform/files/file_in_use.h"
#include "platform/files/settle_file.h"
#include "printfiles/host_files.h"
#include "printfiles/replace_file.h"
#include "run/temp_folder.h"
#include "support/test_run.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

using std::chrono::milliseconds;

// A file that is open here, so that nobody else may do what is not shared.
class OpenFile {
 public:
  OpenFile(const std::filesystem::path& path, DWORD shared)
      : file_(CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(file_, INVALID_HANDLE_VALUE);
  }
  ~OpenFile() { Close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  void Close() {
    if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
    file_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE file_;
};

class WindowsFiles : public testing::Test {
 protected:
  static std::string TextOf(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
  }
  std::string PathOf(const std::string& name) const { return TextOf(Folder.Path() / name); }

  // A folder whose names are all longer than ordinary ones may be, with a backslash at its end.
  std::string MakeLongFolder() const {
    std::string folder = TextOf(std::filesystem::absolute(Folder.Path()));
    for (int level = 0; level < 6; ++level) {
      folder += "\\" + std::string(60, static_cast<char>('a' + level));
      EXPECT_NE(CreateDirectoryW(NativePath(folder).c_str(), nullptr), FALSE) << folder.size();
    }
    return folder + "\\";
  }
  static void Write(const std::string& path, const std::string& bytes) {
    EXPECT_TRUE(ReplaceFile(NativePath(path), bytes,
                            [](const auto& /*fresh*/, const auto& /*old*/) { return true; }));
  }

  TempFolder Folder;
  TestRun Test;
};

TEST_F(WindowsFiles, AreReadWrittenAndDeletedDeeperThanOrdinaryNamesReach) {
  const std::string folder = MakeLongFolder();
  ASSERT_GT(folder.size(), std::size_t{MAX_PATH});
  const std::string file = folder + "User.tmp";
  EXPECT_FALSE(FileExists(file));
  Write(file, "one\r\ntwo\r\n");
  Write(file, "one\r\ntwo\r\nthree\r\n");
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(FileExists(folder));
  EXPECT_EQ(LoadLines(Test.Run, file), 3);
  DeleteFiles(folder, ".tmp");
  EXPECT_FALSE(FileExists(file));
}

TEST_F(WindowsFiles, HaveTheFormForLongNamesOnlyWhereTheyNeedIt) {
  EXPECT_EQ(NativePath("C:\\host\\bin\\User.tmp").native(), L"C:\\host\\bin\\User.tmp");
  const std::wstring name(300, L'x');
  const std::string text(300, 'x');
  EXPECT_EQ(NativePath("C:\\host\\\\..\\" + text).native(), L"\\\\?\\C:\\" + name);
  EXPECT_EQ(NativePath("\\\\server\\share\\" + text).native(), L"\\\\?\\UNC\\server\\share\\" + name);
}

TEST_F(WindowsFiles, AreNoneIfTheyAreDevices) {
  EXPECT_FALSE(FileExists("NUL"));
  EXPECT_FALSE(FileExists("CON"));
}

TEST_F(WindowsFiles, AreReadIfTheyAreReadOnly) {
  Folder.Write("User.tmp", "one\r\n");
  SetFileAttributesW((Folder.Path() / "User.tmp").c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(LoadLines(Test.Run, PathOf("User.tmp")), 1);
  SetFileAttributesW((Folder.Path() / "User.tmp").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFiles, AreReadWhenTheHostHasClosedThem) {
  Folder.Write("User.tmp", "one\r\n");
  OpenFile open(Folder.Path() / "User.tmp", 0);
  auto loaded = std::async(std::launch::async, [&] { return LoadLines(Test.Run, PathOf("User.tmp")); });
  EXPECT_EQ(loaded.wait_for(milliseconds(200)), std::future_status::timeout) << "the host still writes";
  open.Close();
  EXPECT_EQ(loaded.get(), 1);
}

TEST_F(WindowsFiles, AreAFailureThatSaysSoIfTheyStayOpenForTwoSeconds) {
  Folder.Write("User.tmp", "one\r\n");
  const OpenFile open(Folder.Path() / "User.tmp", 0);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_LT(LoadLines(Test.Run, PathOf("User.tmp")), 0);
  EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(1900));
  EXPECT_EQ(Test.Run.Session.Diagnosis, "User.tmp: in use by another program");
}

TEST_F(WindowsFiles, AreKeptIfAViewerHasThemOpenAndTheReasonIsClear) {
  Folder.Write("print.pdf", "old");
  std::error_code error;
  {
    const OpenFile open(Folder.Path() / "print.pdf", FILE_SHARE_READ);
    EXPECT_FALSE(ReplaceFile(Folder.Path() / "print.pdf", "new", SettleFile, error));
  }
  EXPECT_EQ(ReasonOf(error), "it is in use by another program");
  EXPECT_EQ(Folder.Read("print.pdf"), "old");
  EXPECT_EQ(FilesIn(Folder.Path()).size(), 1U);
  EXPECT_TRUE(ReplaceFile(Folder.Path() / "print.pdf", "new", SettleFile, error));
  EXPECT_EQ(Folder.Read("print.pdf"), "new");
}

}  // namespace
}  // namespace tarvis
