#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/process_guard.h"

namespace tarvis {

void GuardProcess() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    // The lowest free number is the one just found to be free.
    if (fcntl(stream, F_GETFD) == -1 && errno == EBADF) static_cast<void>(open("/dev/null", O_RDWR));
  }
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace tarvis
