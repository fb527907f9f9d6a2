#include "core/support/test_run.h"

#include <fstream>
#include <random>
#include <sstream>

#include "printfiles/host_files.h"

namespace tarvis {
namespace {

std::filesystem::path NewFolder() {
  std::random_device random;
  for (;;) {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("tarvis-test-" + std::to_string(random()));
    if (std::filesystem::create_directory(path)) return path;
  }
}

std::tm PinnedTime() {
  std::tm time{};
  time.tm_year = 2026 - 1900;
  time.tm_mon = 2;
  time.tm_mday = 5;
  time.tm_hour = 17;
  time.tm_min = 4;
  time.tm_sec = 9;
  return time;
}

}  // namespace

ScratchFolder::ScratchFolder() : path_(NewFolder()) {}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::HostPath(std::string_view name) const {
  return path_.string() + "\\" + std::string(name);
}

void ScratchFolder::Write(std::string_view name, std::string_view bytes) const {
  const std::filesystem::path file = path_ / name;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

std::string ScratchFolder::Read(std::string_view name) const {
  std::ostringstream bytes;
  bytes << std::ifstream(path_ / name, std::ios::binary).rdbuf();
  return bytes.str();
}

bool ScratchFolder::Has(std::string_view name) const {
  return std::filesystem::exists(path_ / name);
}

TestRun::TestRun() {
  Run.Now = PinnedTime;
}

void TestRun::Load(std::string_view name, const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  LoadBytes(Run, name, bytes);
}

}  // namespace tarvis
