#include "pdf/quiet_toolkit.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include "run/failures.h"

namespace tarvis {
namespace {

// What the toolkit remarks is about desktops, which this program has none of. The last words before it aborts
// the process are the exception; no exception may leave from here.
void Listen(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type != QtFatalMsg) return;
  const std::string line =
      "tarvis-pdf: the toolkit can't start: " + text.section(u'\n', 0, 0).trimmed().toStdString() + "\n";
  std::fputs(line.c_str(), stderr);
  std::fflush(nullptr);
  std::_Exit(ExitAfterRunTimeFailure);
}

// The libraries that look for fonts end the process without a word where memory is short, so there must be
// enough for them before they start. It is only asked for, not used.
void RequireMemory() {
  constexpr std::size_t Enough = std::size_t{64} << 20;
  void* volatile room = std::malloc(Enough);  // volatile, or the compiler would leave it out
  if (room == nullptr) throw std::bad_alloc();
  std::free(room);
}

// At its start the toolkit looks into the folder of the user's session, and makes one below the temporary
// folder where there is none. Below a device no folder can be made. This program needs neither of them.
void KeepFromMakingFolders() {
  qunsetenv("XDG_RUNTIME_DIR");
  qputenv("TMPDIR", "/dev/null");
}

}  // namespace

std::unique_ptr<QGuiApplication> StartQuietToolkit(const char* programName) {
  qInstallMessageHandler(Listen);
  qunsetenv("QT_QPA_PLATFORMTHEME");  // a desktop's look may need its display
  KeepFromMakingFolders();
  RequireMemory();
  static std::string name = programName;
  static std::string platform = "-platform";
  static std::string offscreen = "offscreen";
  static std::array<char*, 4> arguments{name.data(), platform.data(), offscreen.data(), nullptr};
  static int count = static_cast<int>(arguments.size()) - 1;
  return std::make_unique<QGuiApplication>(count, arguments.data());
}

}  // namespace tarvis
