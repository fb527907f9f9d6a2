#include "printfiles/replace_file.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <system_error>
#include <vector>

#include "platform/files/closed_file.h"

namespace tarvis {
namespace {

namespace fs = std::filesystem;

constexpr std::u8string_view Ending = u8".new";
constexpr std::u8string_view HexDigits = u8"0123456789abcdef";
constexpr std::size_t NumberLength = 16;
constexpr std::size_t LongestStart = 200;  // of a name, so that the number fits beside it on every system
constexpr std::chrono::minutes WrittenBefore(1);

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

// What the names of all files start with that are written to replace this one. No character is cut: not every
// system takes a half one in a name.
std::u8string StartOfNames(const fs::path& file) {
  const std::u8string name = file.filename().u8string();
  std::size_t end = std::min(name.size(), LongestStart);
  while (end > 0 && end < name.size() && (name[end] & 0xC0) == 0x80) --end;
  return name.substr(0, end) + u8'.';
}

// "PrintOption.ToT.0123456789abcdef.new"; no two processes choose the same number.
fs::path NameBeside(const fs::path& file) {
  std::random_device random;
  std::u8string name = StartOfNames(file);
  std::uint64_t number = (std::uint64_t{random()} << 32) | random();
  for (std::size_t digit = 0; digit < NumberLength; ++digit, number >>= 4) name += HexDigits[number & 15];
  return file.parent_path() / (name + std::u8string(Ending));
}

bool IsNameBeside(std::u8string_view name, const std::u8string& start) {
  if (name.size() != start.size() + NumberLength + Ending.size()) return false;
  return name.starts_with(start) && name.ends_with(Ending) &&
         name.substr(start.size(), NumberLength).find_first_not_of(HexDigits) == std::u8string_view::npos;
}

// A file that another process is writing at this moment has changed a moment ago.
bool IsLeftover(const fs::directory_entry& entry, const std::u8string& start) {
  if (!IsNameBeside(entry.path().filename().u8string(), start)) return false;
  std::error_code error;
  const fs::file_time_type written = entry.last_write_time(error);
  return !error && written + WrittenBefore < fs::file_time_type::clock::now();
}

// What can't be removed is left for the next time.
void RemoveLeftovers(const fs::path& file) {
  const std::u8string start = StartOfNames(file);
  std::error_code error;
  std::vector<fs::path> leftovers;
  fs::directory_iterator entry(file.has_parent_path() ? file.parent_path() : fs::path("."), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (IsLeftover(*entry, start)) leftovers.push_back(entry->path());
  }
  for (const fs::path& leftover : leftovers) fs::remove(leftover, error);
}

std::error_code LastError() {
  return errno == 0 ? std::make_error_code(std::errc::io_error)
                    : std::error_code(errno, std::generic_category());
}

std::error_code WriteFresh(const fs::path& fresh, std::string_view bytes) {
  errno = 0;
  std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
  if (!file) return LastError();
  errno = 0;
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.fail() ? LastError() : std::error_code();
}

std::error_code Settle(const FileSettler& settle, const fs::path& fresh, const fs::path& replaced) {
  errno = 0;
  return settle(fresh, replaced) ? std::error_code() : LastError();
}

// Where the mode can't be set, the file stays closed.
void TakeModeOf(const fs::file_status& old, const fs::path& fresh) {
  std::error_code error;
  const fs::perms given = fs::status(fresh, error).permissions() & fs::perms::group_all;
  const fs::perms wanted = old.permissions() & (fs::perms::owner_all | fs::perms::others_all | given);
  if (!error) fs::permissions(fresh, wanted, error);
}

std::error_code Replace(const fs::path& fresh, const fs::path& destination, std::string_view bytes,
                        const FileSettler& settle) {
  std::error_code error;
  const fs::file_status old = fs::status(destination, error);
  if (!fs::status_known(old)) return error;
  const bool replaces = fs::exists(old);
  // A file that takes the place of another may hold what that one kept from other users.
  error = replaces ? MakeClosedFile(fresh) : std::error_code();
  if (!error) error = WriteFresh(fresh, bytes);
  if (!error) error = Settle(settle, fresh, destination);
  if (!error && replaces) TakeModeOf(old, fresh);
  if (!error) fs::rename(fresh, destination, error);
  return error;
}

}  // namespace

bool CanBeReplaced(const fs::path& path) {
  return Destination(path).has_value();
}

bool ReplaceFile(const fs::path& path, std::string_view bytes, const FileSettler& settle,
                 std::error_code& error) {
  const std::optional<fs::path> destination = Destination(path);
  error = std::make_error_code(std::errc::operation_not_supported);
  if (!destination) return false;
  RemoveLeftovers(*destination);
  const fs::path fresh = NameBeside(*destination);
  error = Replace(fresh, *destination, bytes, settle);
  std::error_code ignored;  // what stays here is removed the next time
  if (error) fs::remove(fresh, ignored);
  return !error;
}

bool ReplaceFile(const fs::path& path, std::string_view bytes, const FileSettler& settle) {
  std::error_code error;
  return ReplaceFile(path, bytes, settle, error);
}

}  // namespace tarvis
