#include "platform/posix_sockets.h"

#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

namespace tarvis {
namespace {

bool HasTimedOut() {
  return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINPROGRESS;
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

}  // namespace

PatientSocket::PatientSocket(int family, std::chrono::milliseconds patience)
    : stream_(socket(family, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  timeval limit{};
  limit.tv_sec = patience.count() / 1000;
  limit.tv_usec = patience.count() % 1000 * 1000;
  setsockopt(stream_, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  setsockopt(stream_, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

PatientSocket::~PatientSocket() {
  if (stream_ != -1) close(stream_);
}

void PatientSocket::Connect(const sockaddr* address, socklen_t size) {
  connectTimedOut_ = connect(stream_, address, size) != 0 && HasTimedOut();
}

void PatientSocket::Connect(const std::string& name) {
  sockaddr_un address{};
  if (name.empty() || name.size() >= sizeof address.sun_path) return;
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, name.data(), name.size());
  const std::size_t size = offsetof(sockaddr_un, sun_path) + name.size() + (name.front() == '\0' ? 0 : 1);
  Connect(reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(size));
}

bool PatientSocket::IsSilentAfter(std::string_view question) const {
  if (connectTimedOut_) return true;
  const bool failed =
      send(stream_, question.data(), question.size(), MSG_NOSIGNAL) < 0 || Listen(stream_) < 0;
  return failed && HasTimedOut();
}

}  // namespace tarvis
