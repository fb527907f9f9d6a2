#include "printfiles/replace_file.h"

#include <cstdint>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace tarvis {
namespace {

namespace fs = std::filesystem;

constexpr std::u8string_view Ending = u8".new";
constexpr std::u8string_view HexDigits = u8"0123456789abcdef";
constexpr std::size_t NumberLength = 16;

// Where the bytes belong: the regular file at `path` or the target of the link there, or `path` itself if
// nothing is there. Empty for everything else: what is no regular file must neither be waited for nor taken
// away.
std::optional<fs::path> Destination(const fs::path& path) {
  std::error_code error;
  const fs::file_type type = fs::symlink_status(path, error).type();
  if (type == fs::file_type::not_found || type == fs::file_type::regular) return path;
  if (type != fs::file_type::symlink || !fs::is_regular_file(path, error)) return std::nullopt;
  const fs::path target = fs::canonical(path, error);
  if (error) return std::nullopt;
  return target;
}

// "PrintOption.ToT.0123456789abcdef.new"; no two processes choose the same number.
fs::path NameBeside(const fs::path& file) {
  std::random_device random;
  std::u8string name = file.filename().u8string() + u8'.';
  std::uint64_t number = (std::uint64_t{random()} << 32) | random();
  for (std::size_t digit = 0; digit < NumberLength; ++digit, number >>= 4) name += HexDigits[number & 15];
  return file.parent_path() / (name + std::u8string(Ending));
}

bool IsNameBeside(std::u8string_view name, const std::u8string& file) {
  if (name.size() != file.size() + 1 + NumberLength + Ending.size()) return false;
  return name.starts_with(file + u8'.') && name.ends_with(Ending) &&
         name.substr(file.size() + 1, NumberLength).find_first_not_of(HexDigits) == std::u8string_view::npos;
}

// What can't be removed is left for the next time.
void RemoveLeftovers(const fs::path& file) {
  const std::u8string name = file.filename().u8string();
  std::error_code error;
  std::vector<fs::path> leftovers;
  fs::directory_iterator entry(file.parent_path(), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (IsNameBeside(entry->path().filename().u8string(), name)) leftovers.push_back(entry->path());
  }
  for (const fs::path& leftover : leftovers) fs::remove(leftover, error);
}

// A file that takes the place of another may hold what that one kept from other users, so it is closed to
// them from the start.
bool WriteFresh(const fs::path& fresh, std::string_view bytes, bool replaces) {
  std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
  std::error_code ignored;  // not every file system has modes
  if (replaces) fs::permissions(fresh, fs::perms::owner_read | fs::perms::owner_write, ignored);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !file.fail();
}

}  // namespace

bool ReplaceFile(const fs::path& path, std::string_view bytes, const FileSettler& settle) {
  const std::optional<fs::path> destination = Destination(path);
  if (!destination) return false;
  RemoveLeftovers(*destination);
  std::error_code error;
  const fs::file_status old = fs::status(*destination, error);
  const fs::path fresh = NameBeside(*destination);
  bool done = WriteFresh(fresh, bytes, fs::exists(old)) && settle(fresh, *destination);
  if (done && fs::exists(old)) fs::permissions(fresh, old.permissions() & fs::perms::all, error);
  if (done) fs::rename(fresh, *destination, error);
  done = done && !error;
  if (!done) fs::remove(fresh, error);
  return done;
}

}  // namespace tarvis
