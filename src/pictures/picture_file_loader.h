// Loads picture files by what they hold, not by what they are called.
#pragma once

#include <map>

#include "pictures/byte_reader.h"
#include "pictures/paintable_picture.h"

namespace tarvis {

class GlyphOutlines;

// Keeps each picture for as long as the loader lives.
class PictureFileLoader : public PictureLoader {
 public:
  PictureFileLoader();
  ~PictureFileLoader() override;
  PicturePtr Load(const std::string& path) override;
  PicturePtr LoadBytes(const std::string& name, std::string_view bytes) override;

 private:
  std::map<std::string, PicturePtr> loaded_;
  std::unique_ptr<GlyphOutlines> glyphs_;
};

// Decodes a picture of any kind, metafiles with the outlines of `glyphs`; `name` stands for it in the
// RunTimeFailure that says why it can't be shown.
PicturePtr DecodePicture(const std::string& name, Bytes bytes, GlyphOutlines& glyphs);

}  // namespace tarvis
