// Values that a host has written into the registry.
#include "platform/files/windows_registry.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace tarvis {
namespace {

constexpr const char* Key = R"(SOFTWARE\Tarvis tests\Setup)";
constexpr const wchar_t* WideKey = LR"(SOFTWARE\Tarvis tests\Setup)";
constexpr const wchar_t* Parent = LR"(SOFTWARE\Tarvis tests)";

class Registry : public testing::Test {
 protected:
  ~Registry() override {
    for (const REGSAM view : {REGSAM{KEY_WOW64_32KEY}, REGSAM{KEY_WOW64_64KEY}}) {
      RegDeleteKeyExW(HKEY_LOCAL_MACHINE, WideKey, view, 0);
      RegDeleteKeyExW(HKEY_LOCAL_MACHINE, Parent, view, 0);
    }
  }

  static void Write(REGSAM view, DWORD type, const void* bytes, std::size_t size) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, WideKey, 0, nullptr, 0, KEY_SET_VALUE | view, nullptr, &key,
                              nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(
        RegSetValueExW(key, L"Value", 0, type, static_cast<const BYTE*>(bytes), static_cast<DWORD>(size)),
        ERROR_SUCCESS);
    RegCloseKey(key);
  }
  static void WriteText(const std::wstring& text, DWORD type = REG_SZ, REGSAM view = KEY_WOW64_32KEY) {
    Write(view, type, text.data(), text.size() * sizeof(wchar_t));
  }
  static std::optional<std::string> Value() { return RegistryValue(Key, "Value"); }
};

TEST_F(Registry, GivesTheValueOfA32BitHostFirst) {
  WriteText(L"C:\\64 bits", REG_SZ, KEY_WOW64_64KEY);
  EXPECT_EQ(Value(), "C:\\64 bits");
  WriteText(L"C:\\32 bits");
  EXPECT_EQ(Value(), "C:\\32 bits");
}

TEST_F(Registry, HasNoKeyAfterwardsThatItHadNotBefore) {
  EXPECT_EQ(Value(), std::nullopt);
  HKEY key = nullptr;
  EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, Parent, 0, KEY_QUERY_VALUE | KEY_WOW64_32KEY, &key),
            ERROR_FILE_NOT_FOUND);
}

TEST_F(Registry, GivesTextUpToItsFirstNulWithNamesOfAnyLanguage) {
  WriteText(std::wstring(L"C:\\\u8868\0rest", 10));
  EXPECT_EQ(Value(), "C:\\\u8868");
}

TEST_F(Registry, LeavesVariablesInTextAsTheyAre) {
  WriteText(L"%ProgramFiles%\\host", REG_EXPAND_SZ);
  EXPECT_EQ(Value(), "%ProgramFiles%\\host");
}

TEST_F(Registry, GivesTheFirstTextOfSeveral) {
  WriteText(std::wstring(L"one\0two\0", 9), REG_MULTI_SZ);
  EXPECT_EQ(Value(), "one");
}

TEST_F(Registry, TakesWhatIsNoTextAsBytesOfTheSystemsCodePage) {
  const DWORD number = 0x303032;  // the bytes of "200" and a NUL
  Write(KEY_WOW64_32KEY, REG_DWORD, &number, sizeof number);
  EXPECT_EQ(Value(), "200");
  Write(KEY_WOW64_32KEY, REG_BINARY, "100", 3);
  EXPECT_EQ(Value(), "100");
}

TEST_F(Registry, GivesTextOfTheBuffersSizeAndNoneThatIsLonger) {
  WriteText(std::wstring(1024, L'x'));
  EXPECT_EQ(Value(), std::string(1024, 'x'));
  WriteText(std::wstring(1025, L'x'));
  EXPECT_EQ(Value(), std::nullopt);
}

}  // namespace
}  // namespace tarvis
