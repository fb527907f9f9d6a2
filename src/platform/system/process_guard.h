// What the process sets right for itself before anything else runs in it.
#pragma once

namespace tarvis {

// Opens what the caller has closed of the three standard streams as the null device, so that no file or
// connection of the program takes their numbers and gets its diagnoses. Makes a write that fails tell so,
// where the system would rather end the process: standard error that nobody reads any more, a file at its
// size limit. Takes UTF-8 as the encoding of the environment, which the toolkit needs.
void GuardProcess();

}  // namespace tarvis
