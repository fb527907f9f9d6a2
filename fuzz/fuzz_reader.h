// What all reader fuzzers do with a file.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tarvis {

struct PrintRun;

// Loads `data` as the file `name` in one of the code pages, which its size picks, and reads it twice in one
// run, as a return to the dialog does. Whatever the bytes are, the reader accepts them, refuses them with a
// diagnosis of one line, or throws RunTimeFailure; everything else aborts.
void FuzzReader(bool (*reader)(PrintRun& run), const char* name, const std::uint8_t* data, std::size_t size);

}  // namespace tarvis

#define TARVIS_FUZZ_READER(READER, NAME)                                              \
  extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) { \
    tarvis::FuzzReader(READER, NAME, data, size);                                     \
    return 0;                                                                         \
  }
