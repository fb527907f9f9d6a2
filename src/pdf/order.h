// What the command line of tarvis-pdf asks for.
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include "pdf/paper_names.h"

namespace tarvis {

enum class PdfTask { MakeDocument, CheckDocument, ShowHelp, ShowVersion };

struct PdfOrder {
  PdfTask Task = PdfTask::MakeDocument;
  std::string Mode;
  std::string Edition;
  std::string Output;  // "-" for standard output; may be empty for a check

  std::optional<std::string> DataFolder;   // in place of the host's temporary folder
  std::optional<std::string> OptionsFile;  // in place of the kept options
  std::optional<int> CodePageNumber;
  std::optional<PaperSize> Paper;
  std::optional<std::time_t> Date;    // in place of the clock
  std::vector<std::string> Settings;  // NAME=VALUE, in the order in which they apply
  bool AttachesData = false;
  bool IsTagged = false;
  bool ShowsProgress = false;
};

// Options may come before, between and after the operands; "--" ends them, and the value of one follows it
// or an equals sign. Throws PdfError for what is not understood.
PdfOrder ParseOrder(const std::vector<std::string>& arguments);

}  // namespace tarvis
