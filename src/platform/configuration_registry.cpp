#include "platform/configuration_registry.h"

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <istream>
#include <system_error>

#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr std::size_t LongestValue = 1024;  // the registry buffer of the system
constexpr int DefaultCodePage = 1252;

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// At most LongestValue characters of UTF-8.
std::string CutValue(const std::string& text) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool starts = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
    if (starts && ++characters > LongestValue) return text.substr(0, i);
  }
  return text;
}

}  // namespace

ConfigurationRegistry::ConfigurationRegistry(std::string path, Desktop& desktop)
    : path_(std::move(path)), desktop_(desktop) {
  errno = 0;
  std::ifstream file(path_, std::ios::binary);
  if (file) ReadLines(file);
  readable_ = file.eof();
  if (!readable_) desktop_.Diagnose(path_ + ": can't be read: " + std::generic_category().message(errno));
}

void ConfigurationRegistry::ReadLines(std::istream& file) {
  std::string section;
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[') && line.ends_with(']')) {
      section = line.substr(1, line.size() - 2);
    } else if (const std::size_t equals = line.find('='); equals != std::string::npos) {
      values_.try_emplace({section, line.substr(0, equals)}, line.substr(equals + 1));
    }
  }
}

std::string ConfigurationRegistry::Find(const std::string& section, const std::string& entry) const {
  const auto found = values_.find({section, entry});
  return found == values_.end() ? std::string() : found->second;
}

std::string ConfigurationRegistry::Value(const std::string& key, const std::string& valueName) {
  if (readable_ && !values_.contains({key, valueName}))
    desktop_.Diagnose(path_ + ": there is no " + valueName + " in [" + key + "]");
  return CutValue(Find(key, valueName));
}

int ConfigurationRegistry::CodePageNumber() const {
  const std::string text = Find("Tarvis", "CodePage");
  if (text.empty()) return DefaultCodePage;
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw RunTimeFailure("not a code page number",
                         {.File = path_, .Line = 0, .Key = "CodePage", .Text = text});
  }
  return number;
}

bool ConfigurationRegistry::CountsPdfPrinter() const {
  return Find("Tarvis", "PdfPrinter") == "yes";
}

std::string ConfigurationPath() {
  if (std::string told = Environment("TARVIS_CONFIG"); !told.empty()) return told;
  std::string folder = Environment("XDG_CONFIG_HOME");
  if (const std::string home = Environment("HOME"); folder.empty() && !home.empty())
    folder = home + "/.config";
  std::string own = folder + "/tarvis/tarvis.ini";
  std::error_code ignored;  // a folder that can't be looked into holds no file for this user
  if (!folder.empty() && std::filesystem::exists(own, ignored)) return own;
  return "/etc/tarvis/tarvis.ini";
}

}  // namespace tarvis
