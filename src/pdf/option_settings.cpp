#include "pdf/option_settings.h"

#include <utility>
#include <vector>

#include "pdf/pdf_error.h"
#include "printfiles/host_files.h"
#include "printfiles/option_lines.h"
#include "printfiles/print_options_file.h"
#include "run/print_run.h"
#include "text/excerpt.h"

namespace tarvis {
namespace {

constexpr int Utf8 = 65001;
constexpr std::int16_t NewestFile = 4;        // the file version that knows all elements
constexpr const char* SettingName = "--set";  // in place of a file's name in messages

// The value of a key as the options file would hold it; throws for a key that it doesn't know.
std::string WrittenValue(PrintRun& run, const std::string& key) {
  for (const OptionLine& line : OptionLines(run.Options)) {
    if (line.Key == key) return line.Write();
  }
  throw PdfError(std::string(SettingName) + ": no such option: '" + Excerpt(key) + "'");
}

std::vector<std::string> Elements(const std::string& value) {
  std::vector<std::string> elements(1);
  for (const char c : value) {
    if (c == ',') {
      elements.emplace_back();
    } else {
      elements.back() += c;
    }
  }
  return elements;
}

// The value of a key in which element `number`, counted from 1, is replaced.
std::string WithElement(PrintRun& run, const std::string& key, const std::string& number,
                        const std::string& element) {
  std::vector<std::string> elements = Elements(WrittenValue(run, key));
  for (std::size_t index = 0; index < elements.size(); ++index) {
    if (number != std::to_string(index + 1)) continue;
    elements[index] = element;
    std::string value = elements.front();
    for (std::size_t next = 1; next < elements.size(); ++next) value += ',' + elements[next];
    return value;
  }
  throw PdfError(std::string(SettingName) + ": " + key + " has no element '" + Excerpt(number) + "'");
}

bool HasElements(const std::string& key) {
  return key.ends_with("Header") || key.ends_with("Option");
}

// The reader takes no notice of further elements, which would be a title that is cut at its comma.
void RequireElementsOf(PrintRun& run, const std::string& key, const std::string& value) {
  const std::size_t count = Elements(WrittenValue(run, key)).size();
  if (!HasElements(key) || Elements(value).size() <= count) return;
  throw PdfError(std::string(SettingName) + ": " + key + " has " + std::to_string(count) +
                 (count == 1 ? " element" : " elements") + ", each up to a comma");
}

// Reads lines as if they stood in the options file. The places of the options that were read from the file
// itself stay known.
void ReadLinesOf(PrintRun& run, const std::string& lines) {
  CodePage page = std::exchange(run.CodePage, CodePage(Utf8));
  auto places = std::exchange(run.Session.OptionLines, {});
  LoadBytes(run, SettingName, lines);
  run.CodePage = std::move(page);
  const bool isRead = ReadPrintOptionsFile(run);
  run.Session.OptionLines = std::move(places);
  if (!isRead) throw PdfError(run.Session.Diagnosis);
}

}  // namespace

void SetOption(PrintRun& run, const std::string& setting) {
  const std::size_t equals = setting.find('=');
  if (equals == std::string::npos || setting.find('\r') != std::string::npos)
    throw PdfError(std::string(SettingName) + ": not NAME=VALUE in one line: '" + Excerpt(setting) + "'");
  std::string key = setting.substr(0, equals);
  std::string value = setting.substr(equals + 1);
  const std::size_t point = key.find('.');
  if (point != std::string::npos && HasElements(key.substr(0, point))) {
    value = WithElement(run, key.substr(0, point), key.substr(point + 1), value);
    key.resize(point);
  }
  RequireElementsOf(run, key, value);
  run.Options.FileSpec = NewestFile;
  // The last elements of SimOption are read only after a TraceOption that has all of its own.
  std::string lines = key == "SimOption" ? "TraceOption," + WrittenValue(run, "TraceOption") + "\r\n" : "";
  lines += key + "," + value + "\r\n";
  ReadLinesOf(run, lines);
}

}  // namespace tarvis
