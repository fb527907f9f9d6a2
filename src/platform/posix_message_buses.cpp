// Message buses of desktops on POSIX systems that don't answer.
#include <QByteArray>
#include <QList>
#include <array>
#include <string>
#include <string_view>

#include "platform/message_buses.h"
#include "platform/posix_sockets.h"

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

}  // namespace

void LeaveOutSilentBuses(Desktop& desktop, std::chrono::milliseconds patience) {
  constexpr std::string_view Question("\0AUTH\r\n", 7);  // requests the ways to sign in
  for (const Bus& bus : Buses) {
    const std::string address = AddressOf(bus);
    PatientSocket socket(AF_UNIX, patience);
    socket.Connect(SocketName(address));
    if (!socket.IsSilentAfter(Question)) continue;  // the toolkit notices every other failure at once
    desktop.Diagnose("the " + std::string(bus.Name) + " does not answer, so it is left out: " + address);
    qputenv(bus.Variable, SwitchedOff);
  }
}

}  // namespace tarvis
