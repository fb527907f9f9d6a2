// Questions to the print server: what it answers, and that a server which is silent keeps nothing waiting.
#include "platform/print_server.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <unistd.h>

#include <QLibrary>
#include <cstring>
#include <string>
#include <thread>

#include "platform/posix_sockets.h"

namespace tarvis {
namespace {

using namespace std::chrono_literals;

// A server on the loopback address that takes connections and, as long as nobody calls `Answer`, says
// nothing.
class Server {
 public:
  Server() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const auto place = reinterpret_cast<sockaddr*>(&address);
    if (bind(stream_, place, size) != 0 || listen(stream_, 8) != 0 || getsockname(stream_, place, &size) != 0)
      ADD_FAILURE() << std::strerror(errno);
    name_ = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
  }
  ~Server() { close(stream_); }
  const std::string& Name() const { return name_; }
  void Answer() const {
    const int connection = accept(stream_, nullptr, nullptr);
    EXPECT_EQ(send(connection, "HTTP/1.0 200 OK", 15, MSG_NOSIGNAL), 15);
    close(connection);
  }

 private:
  int stream_ = socket(AF_INET, SOCK_STREAM, 0);
  std::string name_;
};

struct PrintServerOfTheUser : testing::Test {
  ~PrintServerOfTheUser() override { Use(nullptr); }
  static void Use(const char* name) {
    auto* const use = reinterpret_cast<void (*)(const char*)>(QLibrary::resolve("cups", 2, "cupsSetServer"));
    ASSERT_NE(use, nullptr);
    use(name);
  }
};

TEST_F(PrintServerOfTheUser, IsSilentIfItTakesAConnectionAndNeverAnswers) {
  const Server server;
  Use(server.Name().c_str());
  EXPECT_TRUE(PrintServerIsSilent(200ms));
}

TEST_F(PrintServerOfTheUser, IsNotSilentIfItAnswers) {
  const Server server;
  Use(server.Name().c_str());
  std::thread answer([&server] { server.Answer(); });
  EXPECT_FALSE(PrintServerIsSilent(60s));
  answer.join();
}

TEST_F(PrintServerOfTheUser, IsNotSilentIfNobodyListens) {
  const std::string gone = Server().Name();
  Use(gone.c_str());
  EXPECT_FALSE(PrintServerIsSilent(60s));
  Use("/nowhere/print.sock");
  EXPECT_FALSE(PrintServerIsSilent(60s));
}

}  // namespace
}  // namespace tarvis
