// Message buses of desktops on POSIX systems that don't answer.
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <QList>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/message_buses.h"

namespace tarvis {
namespace {

// An address that no library can connect to, and that makes none look for another one.
constexpr const char* SwitchedOff = "disabled:";

struct Bus {
  const char* Variable;
  std::string_view Name;
  bool HasDefault;  // a socket of a known name in the runtime folder
};

constexpr std::array Buses = {Bus{"DBUS_SESSION_BUS_ADDRESS", "message bus of the session", true},
                              Bus{"AT_SPI_BUS_ADDRESS", "message bus of the assistive tools", false}};

std::string AddressOf(const Bus& bus) {
  const QByteArray address = qgetenv(bus.Variable);
  if (!address.isEmpty() || !bus.HasDefault) return address.toStdString();
  const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
  return folder.isEmpty() ? std::string() : "unix:path=" + folder.toStdString() + "/bus";
}

// The value of `key` in the first of the addresses, "unix:key=value,key=value;...", with its escapes
// resolved.
std::string ValueIn(const std::string& address, const std::string& key) {
  const QByteArray first = QByteArray::fromStdString(address).split(';').front();
  if (!first.startsWith("unix:")) return {};
  for (const QByteArray& pair : first.mid(5).split(',')) {
    if (pair.startsWith((key + "=").c_str()))
      return QByteArray::fromPercentEncoding(pair.mid(static_cast<qsizetype>(key.size()) + 1)).toStdString();
  }
  return {};
}

// The name of a bus's socket as the system takes it; an abstract one begins with a NUL. Empty for other
// transports.
std::string SocketName(const std::string& address) {
  const std::string abstract = ValueIn(address, "abstract");
  return abstract.empty() ? ValueIn(address, "path") : '\0' + abstract;
}

void LimitWaiting(int stream, std::chrono::milliseconds patience) {
  timeval limit{};
  limit.tv_sec = patience.count() / 1000;
  limit.tv_usec = patience.count() % 1000 * 1000;
  setsockopt(stream, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  setsockopt(stream, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

bool Connect(int stream, const std::string& name) {
  sockaddr_un address{};
  if (name.size() >= sizeof address.sun_path) {
    errno = ENAMETOOLONG;
    return false;
  }
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, name.data(), name.size());
  const std::size_t size = offsetof(sockaddr_un, sun_path) + name.size() + (name.front() == '\0' ? 0 : 1);
  return connect(stream, reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(size)) == 0;
}

// The first byte that comes, or -1 with `errno`.
ssize_t Listen(int stream) {
  char answer = 0;
  ssize_t count = -1;
  do {
    count = recv(stream, &answer, 1, 0);
  } while (count < 0 && errno == EINTR);
  return count;
}

// Requests the ways to sign in, to which every bus replies at once. Every failure but a missing reply is left
// to the toolkit, which notices it at once.
bool IsSilent(int stream, const std::string& name) {
  constexpr std::string_view Question("\0AUTH\r\n", 7);
  const bool failed = !Connect(stream, name) ||
                      send(stream, Question.data(), Question.size(), MSG_NOSIGNAL) < 0 || Listen(stream) < 0;
  return failed && (errno == EAGAIN || errno == EWOULDBLOCK);
}

}  // namespace

void LeaveOutSilentBuses(Desktop& desktop, std::chrono::milliseconds patience) {
  for (const Bus& bus : Buses) {
    const std::string address = AddressOf(bus);
    const std::string name = SocketName(address);
    const int stream = name.empty() ? -1 : socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (stream == -1) continue;
    LimitWaiting(stream, patience);
    if (IsSilent(stream, name)) {
      desktop.Diagnose("the " + std::string(bus.Name) + " does not answer, so it is left out: " + address);
      qputenv(bus.Variable, SwitchedOff);
    }
    close(stream);
  }
}

}  // namespace tarvis
