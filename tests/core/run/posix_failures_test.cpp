// The end of a run where links can be made and deletions be watched.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "core/run/failing_run.h"

namespace tarvis {
namespace {

using testing::UnorderedElementsAre;

// Names of the files deleted from a folder, in the order of their deletion.
class DeletionWatch {
 public:
  explicit DeletionWatch(const std::filesystem::path& folder) : queue_(inotify_init1(IN_NONBLOCK)) {
    inotify_add_watch(queue_, folder.c_str(), IN_DELETE);
  }
  ~DeletionWatch() { close(queue_); }
  DeletionWatch(const DeletionWatch&) = delete;
  DeletionWatch& operator=(const DeletionWatch&) = delete;

  std::vector<std::string> Names() const {
    alignas(inotify_event) std::array<char, 4096> bytes{};
    const ssize_t count = read(queue_, bytes.data(), bytes.size());
    std::vector<std::string> names;
    for (ssize_t offset = 0; offset < count;) {
      const auto* const event = reinterpret_cast<const inotify_event*>(bytes.data() + offset);
      names.emplace_back(event->name);
      offset += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
    return names;
  }

 private:
  const int queue_;
};

TEST_F(Failures, EndOfARunDeletesTheDataFilesBeforeThePictures) {
  for (const char* name : {"a.emf", "b.tmp", "c.emf", "d.tmp"}) Folder.Write(std::string("tmp/") + name, "x");
  const DeletionWatch watch(Folder.Path() / "tmp");
  ExitStatusOf([&] { EndRun(Run); });
  const auto deleted = watch.Names();
  ASSERT_EQ(deleted.size(), 4U);
  EXPECT_THAT(std::vector(deleted.begin(), deleted.begin() + 2), UnorderedElementsAre("b.tmp", "d.tmp"));
  EXPECT_THAT(std::vector(deleted.begin() + 2, deleted.end()), UnorderedElementsAre("a.emf", "c.emf"));
}

TEST_F(Failures, EndOfARunDeletesALinkAndNotWhatItLeadsTo) {
  Folder.Write("tmp/sub/kept", "x");
  Folder.Write("precious", "x");
  std::filesystem::create_symlink(Folder.Path() / "precious", Folder.Path() / "tmp/link.tmp");
  ExitStatusOf([&] { EndRun(Run); });
  EXPECT_TRUE(Folder.Has("precious"));
  EXPECT_FALSE(std::filesystem::is_symlink(Folder.Path() / "tmp/link.tmp"));
}

}  // namespace
}  // namespace tarvis
