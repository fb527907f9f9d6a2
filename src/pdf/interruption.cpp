#include "pdf/interruption.h"

#include <csignal>
#include <cstdlib>
#include <initializer_list>

namespace tarvis {
namespace {

volatile std::sig_atomic_t noted = 0;

extern "C" void Note(int signal) {
  noted = signal;
  std::signal(signal, SIG_DFL);
}

}  // namespace

void NoteInterruptions() {
  for (const int signal : {SIGINT, SIGTERM}) {
    if (std::signal(signal, Note) == SIG_IGN) std::signal(signal, SIG_IGN);  // as the caller has asked for
  }
}

bool IsInterrupted() {
  return noted != 0;
}

void EndAsInterrupted() {
  std::signal(noted, SIG_DFL);
  std::raise(noted);
  std::_Exit(128 + noted);  // not reached where the signal ends the process
}

}  // namespace tarvis
