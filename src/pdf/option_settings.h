// Single options that are set on the command line.
#pragma once

#include <string>

namespace tarvis {

struct PrintRun;

// Sets one of the run's options: "NAME=VALUE" with the name and the form of the value that the options file
// has, or "NAME.N=VALUE" for element N alone of a key that ends in Header or Option. The value is UTF-8.
// Throws PdfError for a name that the file doesn't know, and RunTimeFailure for a number that is none.
void SetOption(PrintRun& run, const std::string& setting);

}  // namespace tarvis
