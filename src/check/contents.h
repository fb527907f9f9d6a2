// What a file held that was just read, each in one line.
#pragma once

#include <string>

namespace tarvis {

struct PrintRun;

std::string OptionsContents(const PrintRun& run);
std::string UserContents(const PrintRun& run);
std::string UPWizardContents(const PrintRun& run);
std::string TraceContents(const PrintRun& run);
std::string RealTraceContents(const PrintRun& run);
std::string MechaContents(const PrintRun& run);
std::string SimContents(const PrintRun& run);
std::string IdxTblContents(const PrintRun& run);
std::string ZoneTblContents(const PrintRun& run);
std::string JogTblContents(const PrintRun& run);

}  // namespace tarvis
