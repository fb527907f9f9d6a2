// Any bytes as a picture file.
#include "fuzz_picture.h"
#include "pictures/picture_file_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto load = [](tarvis::Bytes bytes, tarvis::GlyphOutlines& glyphs, tarvis::PictureBudget& budget) {
    return tarvis::DecodePicture("fuzz", bytes, glyphs, budget);
  };
  tarvis::FuzzPicture(load, {data, size});
  return 0;
}
