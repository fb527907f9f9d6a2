#include "session/title_limit.h"

#include <algorithm>
#include <string>

#include "run/print_run.h"
#include "text/text.h"

namespace tarvis {
namespace {

// A box of one line takes a text up to its first line break, whichever kind that is.
std::string FirstLine(const std::string& text) {
  std::size_t end = text.find_first_of("\r\n");
  for (const char* separator : {"\xE2\x80\xA8", "\xE2\x80\xA9"}) end = std::min(end, text.find(separator));
  return text.substr(0, end);
}

}  // namespace

void TakeTitle(PrintRun& run, std::string& title) {
  const std::string line = FirstLine(title);
  title = CutToBytes(run.CodePage, line, TitleLimit);
  if (title != line) ShowByteLimit(run, TitleLimit);
}

void ShowByteLimit(PrintRun& run, int limit) {
  run.Desktop.ShowMessage(InputErrorTitle, "Try with  Less Characters.  Up to " + std::to_string(limit) +
                                               " Characters can be Inputted.");
}

}  // namespace tarvis
