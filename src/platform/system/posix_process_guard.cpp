// What the process sets up for itself on POSIX systems.
#include <fcntl.h>
#include <langinfo.h>
#include <sys/resource.h>
#include <unistd.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <string>

#include "platform/system/process_guard.h"

namespace tarvis {
namespace {

// The toolkit works in UTF-8. Where the environment demands another encoding, or contains no setting at all,
// newer toolkits print a warning on standard error. Language, measures and formats stay those of the user.
void AskForUtf8() {
  std::setlocale(LC_ALL, "");
  if (std::string(nl_langinfo(CODESET)) == "UTF-8") return;
  const char* all = std::getenv("LC_ALL");  // has precedence over all others, so it must be replaced
  if (all != nullptr && *all != '\0') setenv("LANG", all, 1);
  unsetenv("LC_ALL");
  setenv("LC_CTYPE", "C.UTF-8", 1);
}

// A dump of the memory would hold the document and its addresses.
void KeepFromDumping() {
  rlimit core = {};
  if (getrlimit(RLIMIT_CORE, &core) != 0) return;
  core.rlim_cur = 0;
  static_cast<void>(setrlimit(RLIMIT_CORE, &core));
}

}  // namespace

void GuardProcess() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    // The lowest free number is the one just found to be free.
    if (fcntl(stream, F_GETFD) == -1 && errno == EBADF) static_cast<void>(open("/dev/null", O_RDWR));
  }
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  KeepFromDumping();
  AskForUtf8();
}

void UseOneMemoryPool() {
#ifdef __GLIBC__
  mallopt(M_ARENA_MAX, 1);
#endif
}

}  // namespace tarvis
