// Connections to servers that may take them and never answer.
#pragma once

#include <sys/socket.h>

#include <chrono>
#include <string>
#include <string_view>

namespace tarvis {

// A connection that is closed with the object. No call waits longer than `patience` on it.
class PatientSocket {
 public:
  PatientSocket(int family, std::chrono::milliseconds patience);
  ~PatientSocket();
  PatientSocket(const PatientSocket&) = delete;
  PatientSocket& operator=(const PatientSocket&) = delete;

  void Connect(const sockaddr* address, socklen_t size);
  // To a socket of the file system, or to an abstract one, whose name begins with a NUL.
  void Connect(const std::string& name);
  // Sends `question`, which every server of the kind answers at once. True if nothing comes back in time, or
  // if nobody took the connection in time. Any other failure is no silence.
  bool IsSilentAfter(std::string_view question) const;

 private:
  int stream_;
  bool connectTimedOut_ = false;
};

}  // namespace tarvis
