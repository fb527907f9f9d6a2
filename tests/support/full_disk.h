// As long as it lives, no file of this process grows beyond a thousand bytes: a disk that is full.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace tarvis {

class FullDisk {
 public:
  FullDisk() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit tight{1000, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

}  // namespace tarvis
