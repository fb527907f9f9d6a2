// What the host's developers ask of a file: is it good, and what does it hold?
#pragma once

#include <string>
#include <string_view>

#include "text/code_page.h"

namespace tarvis {

struct FileCheck {
  bool IsGood = false;
  std::string Line;  // what the file holds, or what is wrong with it
};

// Reads the file at `path`, whose name without folder says what kind of file it is: User.tmp, Trace2.tmp,
// PrintOption.ToT and so on, and makes its pages with every item chosen: what would stop the print module is
// wrong with the file. Of an overlap, the main file in the same folder decides. Writes and deletes nothing.
FileCheck CheckFile(std::string_view path, CodePage page);

}  // namespace tarvis
