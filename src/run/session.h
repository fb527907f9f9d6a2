// The record of one run that all other parts of the program read.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "run/mode.h"
#include "text/checked_array.h"
#include "text/text_lines.h"

namespace tarvis {

class ActiveReport;

// The five flags (1 on, 0 off) and the title that every function has.
struct HeaderOptions {
  std::int16_t Title = 0;
  std::int16_t ModelsInfo = 0;
  std::int16_t PrintDate = 0;
  std::int16_t FileName = 0;
  std::int16_t Pages = 0;
  std::string TitleText;
};

// Each field is zero or empty until the step of the run that sets it. Session flags are -1 true, 0 false.
struct PrintSession {
  tarvis::Mode Mode = tarvis::Mode::None;
  std::string ModeText;  // the argument as the host wrote it
  std::int16_t HostEdition = 0;
  std::string HostVersion;   // first three characters of the host's version
  std::string SystemFolder;  // ends in a backslash
  std::string TempFolder;    // ends in a backslash; empty before the folders are known
  std::string HelpFile;
  std::int32_t HelpContextId = 0;

  TextLines Lines;             // of the file loaded last; one empty spare at index LineCount
  std::int32_t LineCount = 0;  // -1 after a load that failed
  std::string LinesFile;       // name without folder of the file loaded last
  std::string Diagnosis;       // why a data file or a picture was refused, in one line; empty if none was

  std::map<std::string, int, std::less<>>
      OptionLines;  // the line of each key in the options file that was read

  ActiveReport* MasterReport = nullptr;  // the running master report; not owned
  CheckedArray<std::string> ModuleNames{"ModuleNames"};
  std::int16_t ModuleLast = 0;  // highest used index of ModuleNames
  HeaderOptions ActiveHeader;
  std::string DataDate;

  std::int16_t ShowPrmName = 0;
  std::int16_t ShowPrmUnit = 0;
  std::int16_t ShowPrmDefault = 0;
  std::int16_t ShowPrmSwitches = 0;

  std::int16_t OverlapMode = 0;
  std::int16_t OverlapNum = 0;
  std::int16_t FinishedReports = 0;
  std::string TocGroup;
  std::int16_t SimExMode = 0;

  std::int16_t StepLimit = 0;
  std::int16_t StepStartValid = 0;
  std::int16_t StepEndValid = 0;
};

}  // namespace tarvis
