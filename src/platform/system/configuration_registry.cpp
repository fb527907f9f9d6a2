#include "platform/system/configuration_registry.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <istream>
#include <system_error>

#include "text/code_page.h"
#include "text/run_time_failure.h"
#include "text/text.h"

namespace tarvis {
namespace {

constexpr std::size_t LongestValue = 1024;  // the registry buffer of the system

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// Whether `path` is a pipe or a device: opening one may block for ever, and reading it may never end.
bool IsSpecialFile(const std::string& path) {
  std::error_code ignored;  // a failure is reported when the file is opened
  return std::filesystem::is_other(std::filesystem::status(path, ignored));
}

}  // namespace

ConfigurationRegistry::ConfigurationRegistry(std::string path, Desktop& desktop)
    : path_(std::move(path)), desktop_(desktop) {
  if (IsSpecialFile(path_)) {
    desktop_.Diagnose(path_ + ": can't be read: is no regular file");
    return;
  }
  errno = 0;
  std::ifstream file(path_, std::ios::binary);
  if (file) ReadLines(file);
  readable_ = file.eof();
  if (!readable_) desktop_.Diagnose(path_ + ": can't be read: " + std::generic_category().message(errno));
}

void ConfigurationRegistry::ReadLines(std::istream& file) {
  std::string section;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    if (++number == 1 && line.starts_with(ByteOrderMark)) line.erase(0, ByteOrderMark.size());
    if (number == 1 && (line.starts_with("\xFF\xFE") || line.starts_with("\xFE\xFF")))
      desktop_.Diagnose(path_ + ": is UTF-16 text, where UTF-8 is read");
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[') && line.ends_with(']')) {
      section = line.substr(1, line.size() - 2);
    } else if (const std::size_t equals = line.find('='); equals != std::string::npos) {
      values_.try_emplace({section, line.substr(0, equals)}, Entry{line.substr(equals + 1), number});
    }
  }
}

ConfigurationRegistry::Entry ConfigurationRegistry::Find(const std::string& section,
                                                         const std::string& entry) const {
  const auto found = values_.find({section, entry});
  return found == values_.end() ? Entry() : found->second;
}

std::string ConfigurationRegistry::Value(const std::string& key, const std::string& valueName) {
  if (readable_ && !values_.contains({key, valueName}))
    desktop_.Diagnose(path_ + ": there is no " + valueName + " in [" + key + "]");
  const Entry entry = Find(key, valueName);
  if (CharacterCount(entry.Value) <= LongestValue) return entry.Value;
  desktop_.Diagnose(path_ + ":" + std::to_string(entry.Line) + ": " + valueName + ": more than " +
                    std::to_string(LongestValue) + " characters");
  return {};
}

CodePage ConfigurationRegistry::SystemCodePage() const {
  const Entry entry = Find("Tarvis", "CodePage");
  if (entry.Value.empty()) return CodePage();
  try {
    return CodePage(CodePageNumber(entry.Value));
  } catch (const RunTimeFailure& failure) {
    throw failure.At({.File = path_, .Line = entry.Line, .Key = {}});
  }
}

bool ConfigurationRegistry::CountsPdfPrinter() const {
  return Find("Tarvis", "PdfPrinter").Value == "yes";
}

std::string ConfigurationPath() {
  if (std::string path = Environment("TARVIS_CONFIG"); !path.empty()) return path;
  std::string folder = Environment("XDG_CONFIG_HOME");
  if (const std::string home = Environment("HOME"); folder.empty() && !home.empty())
    folder = home + "/.config";
  std::string own = folder + "/tarvis/tarvis.ini";
  std::error_code ignored;  // a folder that can't be read contains no file for this user
  if (!folder.empty() && std::filesystem::exists(own, ignored)) return own;
  return "/etc/tarvis/tarvis.ini";
}

}  // namespace tarvis
