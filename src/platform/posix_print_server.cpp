// A print server on POSIX systems that doesn't answer.
#include <netdb.h>

#include <QLibrary>
#include <memory>
#include <string>

#include "platform/posix_sockets.h"
#include "platform/print_server.h"

namespace tarvis {
namespace {

constexpr std::string_view Question = "HEAD / HTTP/1.0\r\n\r\n";

// Of the print system's client library; null where there is none.
template <typename Function>
Function* ClientFunction(const char* name) {
  constexpr int Version = 2;
  return reinterpret_cast<Function*>(QLibrary::resolve(QStringLiteral("cups"), Version, name));
}

bool HostIsSilent(const char* host, int port, std::chrono::milliseconds patience) {
  addrinfo wanted{};
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (getaddrinfo(host, std::to_string(port).c_str(), &wanted, &found) != 0) return false;
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> address(found, freeaddrinfo);
  PatientSocket socket(address->ai_family, patience);
  socket.Connect(address->ai_addr, address->ai_addrlen);
  return socket.IsSilentAfter(Question);
}

}  // namespace

bool PrintServerIsSilent(std::chrono::milliseconds patience) {
  auto* const server = ClientFunction<const char*()>("cupsServer");
  auto* const port = ClientFunction<int()>("ippPort");
  if (server == nullptr || port == nullptr) return false;
  const std::string name = server();
  if (!name.starts_with('/')) return HostIsSilent(name.c_str(), port(), patience);
  PatientSocket socket(AF_UNIX, patience);
  socket.Connect(name);
  return socket.IsSilentAfter(Question);
}

}  // namespace tarvis
