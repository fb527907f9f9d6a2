// What the process sets up for itself on Windows.
#include <windows.h>

#include <cstdio>
#include <string>

#include "platform/system/process_guard.h"

namespace tarvis {
namespace {

void SetIfUnset(const wchar_t* name, const std::wstring& value) {
  const bool isUnset = GetEnvironmentVariableW(name, nullptr, 0) == 0;
  if (isUnset) _wputenv_s(name, value.c_str());
}

// Without a display, the toolkit looks for fonts in a folder, which it doesn't know.
void NameFolderOfFonts() {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(GetWindowsDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
  SetIfUnset(L"QT_QPA_FONTDIR", folder + L"\\Fonts");
}

// A program with windows has no console of its own: what it has to say goes to the one from which it was
// started, if there is one, and Ctrl+C there ends it.
void UseConsoleOfTheStart() {
  if (GetStdHandle(STD_ERROR_HANDLE) != nullptr || AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) return;
  static_cast<void>(std::freopen("CONOUT$", "w", stderr));
}

}  // namespace

// The runtime library keeps the numbers of closed streams free, and no signal ends a process for a failed
// write. The compiler's library frees what belongs to a thread before it calls the destructors of that, and
// those of the toolkit's compiled patterns then crash; so it compiles none.
void GuardProcess() {
  SetIfUnset(L"QT_ENABLE_REGEXP_JIT", L"0");
  NameFolderOfFonts();
  UseConsoleOfTheStart();
}

// There is one pool.
void UseOneMemoryPool() {}

}  // namespace tarvis
