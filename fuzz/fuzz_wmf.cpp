// Any bytes as an old-style metafile.
#include "fuzz_picture.h"
#include "pictures/metafile/list/metafile_picture.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tarvis::FuzzPicture(tarvis::LoadWmf, {data, size});
  return 0;
}
